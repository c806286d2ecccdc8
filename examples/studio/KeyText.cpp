#include "KeyText.h"

#include <QKeySequence>

namespace Studio::KeyText {

namespace {

bool isModifier(int key)
{
    switch (key) {
    case 0:
    case Qt::Key_unknown:
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
        return true;
    default:
        return false;
    }
}

/// The character that the key types without Shift; the key itself when it types one.
int withoutShift(int key)
{
    const QLatin1String shifted("!@#$%^&*()_+{}|:\"<>?~");
    const QLatin1String plain("1234567890-=[]\\;',./`");
    for (int i = 0; i < shifted.size(); ++i) {
        if (shifted.at(i).unicode() == key)
            return plain.at(i).unicode();
    }
    return key;
}

/// Other names of the same key.
QVector<int> namesOf(int key)
{
    switch (key) {
    case Qt::Key_Backtab:
        return {Qt::Key_Tab, Qt::Key_Backtab};
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return {key, key == Qt::Key_Return ? Qt::Key_Enter : Qt::Key_Return};
    default:
        return {key};
    }
}

} // namespace

QStringList candidates(const QKeyEvent &event)
{
    QStringList texts;
    if (isModifier(event.key()))
        return texts;
    const auto add = [&texts](int combination) {
        const QString text = QKeySequence(combination).toString(QKeySequence::PortableText);
        if (!text.isEmpty() && !texts.contains(text))
            texts.append(text);
    };
    const int pressed =
            static_cast<int>(event.modifiers())
            & int{Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::KeypadModifier};
    for (int modifiers : {pressed, pressed & ~int{Qt::KeypadModifier}}) {
        for (int key : namesOf(event.key()))
            add(key | modifiers);
        if ((modifiers & int{Qt::ShiftModifier}) == 0 || (modifiers & int{Qt::KeypadModifier}) != 0)
            continue;
        const int plain = withoutShift(event.key());
        if (plain != event.key()) {
            add(plain | modifiers);
            add(event.key() | (modifiers & ~int{Qt::ShiftModifier}));
        }
    }
    return texts;
}

} // namespace Studio::KeyText
