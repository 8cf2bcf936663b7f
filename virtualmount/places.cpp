// SPDX-License-Identifier: MIT
// Shares the screen between the program and the virtual mount.
#include "virtualmount/places.h"

#include <algorithm>

Places sideBySide(const QRect &screen, const QSize &mountSize)
{
    constexpr int titleBar = 36;
    constexpr int border = 4;
    constexpr int programWidest = 1620, programHighest = 1040;
    constexpr int programNarrowest = 400;
    const int top = screen.top() + titleBar;
    const int highest = screen.height() - titleBar - border;
    const int left = screen.left() + border;
    const int room = screen.width() - mountSize.width() - 4 * border;
    const int width = std::clamp(room, programNarrowest, programWidest);
    const QRect program(left, top, width, std::min(highest, programHighest));
    const QRect mount(program.right() + 1 + 2 * border, top, mountSize.width(),
                      std::min(highest, mountSize.height()));
    return {program, mount};
}
