#include "databases/DialableForm.h"

namespace zv {

DialableForm::DialableForm(const char *utf8) {
    for (size_t read = 0; utf8 && read < limit && utf8[read] != '\0'; ++read) {
        if (isDialable(utf8[read]))
            m_bytes[m_length++] = utf8[read];
    }
    m_bytes[m_length] = '\0';
}

} // namespace zv
