#include "HotkeyText.h"

#include <QKeySequence>

#include <algorithm>

namespace Host {

namespace {

bool hasUnknownKey(const QKeySequence &sequence)
{
    for (int i = 0; i < sequence.count(); ++i) {
        const int key =
                sequence[static_cast<uint>(i)] & ~static_cast<int>(Qt::KeyboardModifierMask);
        if (key == 0 || key == Qt::Key_unknown)
            return true;
    }
    // A control character counts as a key of that code, but no keyboard has it.
    const QString text = sequence.toString(QKeySequence::PortableText);
    return !std::all_of(text.begin(), text.end(), [](QChar c) { return c.isPrint(); });
}

} // namespace

std::optional<QString> canonicalHotkey(const QString &text, QString &reason)
{
    if (text.isEmpty()) {
        reason = QStringLiteral("an empty text names no key");
        return {};
    }
    QKeySequence sequence = QKeySequence::fromString(text, QKeySequence::PortableText);
    if (hasUnknownKey(sequence))
        sequence = QKeySequence::fromString(text, QKeySequence::NativeText);
    if (hasUnknownKey(sequence)) {
        reason = QStringLiteral("'%1' names a key that does not exist").arg(text);
        return {};
    }
    if (sequence.count() != 1) {
        reason = QStringLiteral("'%1' is more than one key combination").arg(text);
        return {};
    }
    return sequence.toString(QKeySequence::PortableText);
}

} // namespace Host
