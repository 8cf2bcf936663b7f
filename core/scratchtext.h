// SPDX-License-Identifier: MIT
// How is the text of an INI file made by the toolkit's writer, without its faults?
#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <optional>

class QSettings;

/// Makes the text of an INI file from an old one's. The toolkit's writer works on a scratch file
/// whose name nobody knows, since it waits, without a limit, for a lock file beside the file that
/// it writes; and the text is checked to be complete, since it does not notice a full disk.
/// @param scratchTemplate its path, ending in XXXXXX: in the folder of the file that it is for
/// @param put sets the keys
/// @return nullopt, with a reason, if that fails
std::optional<QByteArray> iniTextWith(const QByteArray &old, const QString &scratchTemplate,
                                      const std::function<void(QSettings &)> &put, QString &reason);
