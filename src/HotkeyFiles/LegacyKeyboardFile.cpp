#include "LegacyKeyboardFile.h"

#include "KeyNames.h"
#include "XmlDocument.h"

#include <QXmlStreamReader>

namespace CUI::LegacyKeyboardFile {

namespace {

const QLatin1String rootName("VLSK_KBD");
const QLatin1String shortcutName("shortcut");
const QLatin1String flagsAttribute("fVirt");
const QLatin1String keyAttribute("accleleratorKey"); // spelled so in the files
const QLatin1String actionAttribute("actionID");
const QLatin1String tableAttribute("actionTableID");

void readShortcut(const QXmlStreamAttributes &attributes, ShortcutTransformation::Kind kind,
                  std::vector<ShortcutTransformation> &steps)
{
    const QStringRef flags = attributes.value(flagsAttribute);
    const QStringRef key = attributes.value(keyAttribute);
    const QStringRef action = attributes.value(actionAttribute);
    if (flags.isEmpty() || key.isEmpty() || action.isEmpty())
        return;
    const QString shortcut = KeyNames::virtualKeyToStr(key.toInt(), flags.toInt());
    if (shortcut.isEmpty())
        return;
    steps.emplace_back(
            kind, ActionIdentifier{attributes.value(tableAttribute).toUInt(), action.toString()},
            shortcut, QString());
}

} // namespace

std::optional<std::vector<ShortcutTransformation>> read(const XmlDocument &document,
                                                        ShortcutTransformation::Kind kind)
{
    QXmlStreamReader reader(document.utf8());
    if (!reader.readNextStartElement() || reader.name() != rootName)
        return {};
    std::vector<ShortcutTransformation> steps;
    while (reader.readNextStartElement()) {
        if (reader.name() == shortcutName)
            readShortcut(reader.attributes(), kind, steps);
        reader.skipCurrentElement();
    }
    return steps;
}

} // namespace CUI::LegacyKeyboardFile
