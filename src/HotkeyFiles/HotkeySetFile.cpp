#include "HotkeySetFile.h"

#include "XmlDocument.h"
#include "XmlReading.h"

#include <QIODevice>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>

namespace CUI::HotkeySetFile {

namespace {

const QLatin1String rootName("VelHotkeyTransformations");
const QLatin1String assignName("Assign_Hotkey");
const QLatin1String unassignName("Unassign_Hotkey");
const QLatin1String lockedAttribute("Locked");
const QLatin1String descriptionAttribute("Description");
const QLatin1String shortcutAttribute("Shortcut");
const QLatin1String idAttribute("Id");

void readStep(const QXmlStreamReader &reader, std::vector<ShortcutTransformation> &steps)
{
    const bool assigns = reader.name() == assignName;
    if (!assigns && reader.name() != unassignName)
        return;
    const QXmlStreamAttributes attributes = reader.attributes();
    const QString shortcut = attributes.value(shortcutAttribute).toString();
    const auto actionId = ActionIdentifier::fromString(attributes.value(idAttribute).toString());
    if (shortcut.isEmpty() || actionId.isEmpty())
        return;
    steps.emplace_back(assigns ? ShortcutTransformation::Assign : ShortcutTransformation::Unassign,
                       actionId, shortcut, attributes.value(descriptionAttribute).toString());
}

void writeStep(QXmlStreamWriter &writer, const ShortcutTransformation &step)
{
    const bool assigns = step.kind() == ShortcutTransformation::Assign;
    writer.writeEmptyElement(assigns ? assignName : unassignName);
    writer.writeAttribute(shortcutAttribute, step.shortcut());
    const QString description = XmlReading::xmlText(step.description());
    if (!description.isEmpty())
        writer.writeAttribute(descriptionAttribute, description);
    writer.writeAttribute(idAttribute, step.actionId().toString());
}

} // namespace

Content read(const XmlDocument &document)
{
    Content content;
    QXmlStreamReader reader(document.utf8());
    if (reader.readNextStartElement()) {
        if (reader.name() != rootName)
            reader.raiseError(XmlReading::wrongRootText(QStringLiteral("hsx")));
        while (!reader.hasError() && reader.readNextStartElement()) {
            readStep(reader, content.steps);
            reader.skipCurrentElement();
        }
    }
    content.error = XmlReading::errorOf(reader);
    return content;
}

std::optional<Metadata> readMetadata(const XmlDocument &document)
{
    QXmlStreamReader reader(document.utf8());
    if (!reader.readNextStartElement() || reader.name() != rootName)
        return {};
    const QXmlStreamAttributes attributes = reader.attributes();
    const QStringRef locked = attributes.value(lockedAttribute);
    return Metadata{attributes.value(descriptionAttribute).toString(),
                    locked == QLatin1String("true") || locked == QLatin1String("1")};
}

bool write(QIODevice &device, const std::vector<ShortcutTransformation> &steps,
           LockAttribute lockAttribute)
{
    if (firstUnwritable(steps) != nullptr)
        return false;
    QXmlStreamWriter writer(&device);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(rootName);
    if (lockAttribute == LockAttribute::WriteUnlocked)
        writer.writeAttribute(lockedAttribute, QStringLiteral("false"));
    for (const ShortcutTransformation &step : steps)
        writeStep(writer, step);
    writer.writeEndDocument();
    return !writer.hasError();
}

bool isWritable(const ShortcutTransformation &step)
{
    return XmlReading::isXmlText(step.actionId().actionId)
           && XmlReading::isXmlText(step.shortcut());
}

const ShortcutTransformation *firstUnwritable(const std::vector<ShortcutTransformation> &steps)
{
    const auto it = std::find_if_not(steps.begin(), steps.end(), isWritable);
    return it == steps.end() ? nullptr : &*it;
}

} // namespace CUI::HotkeySetFile
