// The system databases' schemas, as SQL scripts: the files of simulator/demo/schemas.
#pragma once

namespace sim {

extern const char *const addressBookSchema;  ///< needs the SQL function ab_generate_guid()
extern const char *const callHistory7Schema; ///< `call` and `_SqliteDatabaseProperties`
extern const char *const callHistory8Schema; ///< the Core Data store

} // namespace sim
