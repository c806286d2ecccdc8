#pragma once

#include <QString>

namespace HotkeyCtl {

class Session;

/// One of the store's static checks, such as validateShortcuts().
using Validation = bool (*)(const QString &path);

/// What is wrong with the file @p path, with the place if there is one; null when it passes
/// @p validate.
QString faultOf(const QString &path, Validation validate, const Session &session);

} // namespace HotkeyCtl
