#include "BaseHotkeyFile.h"

#include "XmlDocument.h"
#include "XmlReading.h"

#include <QIODevice>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>

namespace CUI::BaseHotkeyFile {

namespace {

const QLatin1String rootName("VelHotkeys");
const QLatin1String hotkeyName("Hotkey");
const QLatin1String shortcutAttribute("Shortcut");
const QLatin1String descriptionAttribute("Description");
const QLatin1String idAttribute("Id");
const QLatin1String separator(", ");

bool isWritable(const Entry &entry)
{
    return XmlReading::isXmlText(entry.actionId.actionId)
           && std::all_of(entry.shortcuts.begin(), entry.shortcuts.end(), XmlReading::isXmlText);
}

void readEntry(const QXmlStreamAttributes &attributes, std::vector<Entry> &entries)
{
    const QStringRef shortcuts = attributes.value(shortcutAttribute);
    const auto actionId = ActionIdentifier::fromString(attributes.value(idAttribute).toString());
    if (!shortcuts.isEmpty() && !actionId.isEmpty())
        entries.push_back({actionId, shortcuts.toString().split(separator), {}});
}

} // namespace

Content read(const XmlDocument &document)
{
    Content content;
    QXmlStreamReader reader(document.utf8());
    if (reader.readNextStartElement()) {
        if (reader.name() != rootName)
            reader.raiseError(XmlReading::wrongRootText(QStringLiteral("hsxb")));
        while (!reader.hasError() && reader.readNextStartElement()) {
            if (reader.name() == hotkeyName)
                readEntry(reader.attributes(), content.entries);
            reader.skipCurrentElement();
        }
    }
    content.error = XmlReading::errorOf(reader);
    return content;
}

bool write(QIODevice &device, const std::vector<Entry> &entries)
{
    if (firstUnwritable(entries) != nullptr)
        return false;
    QXmlStreamWriter writer(&device);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(rootName);
    for (const Entry &entry : entries) {
        writer.writeEmptyElement(hotkeyName);
        writer.writeAttribute(shortcutAttribute, entry.shortcuts.join(separator));
        if (!entry.description.isNull())
            writer.writeAttribute(descriptionAttribute, XmlReading::xmlText(entry.description));
        writer.writeAttribute(idAttribute, entry.actionId.toString());
    }
    writer.writeEndDocument();
    return !writer.hasError();
}

const Entry *firstUnwritable(const std::vector<Entry> &entries)
{
    const auto it = std::find_if_not(entries.begin(), entries.end(), isWritable);
    return it == entries.end() ? nullptr : &*it;
}

} // namespace CUI::BaseHotkeyFile
