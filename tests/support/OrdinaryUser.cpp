#include "support/OrdinaryUser.h"

#include <stdexcept>
#include <unistd.h>

namespace support {

namespace {
constexpr uid_t nobody = 65534;
} // namespace

OrdinaryUser::OrdinaryUser() : m_user(geteuid()) {
    if (m_user == 0 && seteuid(nobody) != 0)
        throw std::runtime_error("cannot give up the superuser's rights");
}

OrdinaryUser::~OrdinaryUser() {
    (void)seteuid(m_user);
}

} // namespace support
