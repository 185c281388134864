#include "databases/Database.h"

#include "databases/Statement.h"

namespace zv {

bool Database::run(const char *sql) const {
    return Statement(*this, sql).finish();
}

} // namespace zv
