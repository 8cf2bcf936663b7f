// SPDX-License-Identifier: MIT
// What may somebody do who is not root?
#pragma once

#include <QtGlobal>
#include <unistd.h>

/// The rights of an ordinary user while it lives, where the tests run as root, whom no rights bind.
class OrdinaryUser
{
public:
    static constexpr uid_t number = 65534; ///< whom what it may change must be given to

    OrdinaryUser() : root(geteuid() == 0)
    {
        if (root && seteuid(number) != 0)
            qFatal("can not become an ordinary user");
    }
    ~OrdinaryUser()
    {
        if (root && seteuid(0) != 0)
            qFatal("can not become root again");
    }

private:
    bool root;
};
