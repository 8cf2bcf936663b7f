// SPDX-License-Identifier: MIT
// What is permitted to a user who is not root?
#pragma once

#include <QtGlobal>
#include <unistd.h>

/// An ordinary user's permissions while it exists, if the tests run as root, who may do anything.
class OrdinaryUser
{
public:
    static constexpr uid_t number = 65534; ///< owner to give to whatever that user may change

    OrdinaryUser() : root(geteuid() == 0)
    {
        if (root && seteuid(number) != 0)
            qFatal("cannot become an ordinary user");
    }
    ~OrdinaryUser()
    {
        if (root && seteuid(0) != 0)
            qFatal("cannot become root again");
    }

private:
    bool root;
};
