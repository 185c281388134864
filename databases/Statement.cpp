#include "databases/Statement.h"

namespace zv {

void Statement::bind(int index, int value) {
    if (isPrepared())
        sqlite3_bind_int(m_statement, index, value);
}

void Statement::bind(int index, const char *text) {
    if (isPrepared())
        sqlite3_bind_text(m_statement, index, text, -1, SQLITE_STATIC);
}

} // namespace zv
