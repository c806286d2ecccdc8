#pragma once

#include <QString>

#include <functional>

namespace HotkeyCtl {

class Session;

/// One of the store's static checks, such as validateShortcuts(), or a reading of the file.
using Validation = std::function<bool(const QString &path)>;

/// What is wrong with the file @p path, with the place if there is one; null when it passes
/// @p validate, which alone opens it then.
QString faultOf(const QString &path, const Validation &validate, const Session &session);

} // namespace HotkeyCtl
