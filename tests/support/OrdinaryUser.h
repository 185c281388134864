// File permissions bind everyone but the superuser, whom containers like to run tests as.
#pragma once

#include <sys/types.h>

namespace support {

/// Runs its scope without the superuser's rights; nothing changes for a process that has none.
class OrdinaryUser {
public:
    OrdinaryUser();
    ~OrdinaryUser();
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

private:
    uid_t m_user;
};

} // namespace support
