#include "BaseHotkeyFile.h"
#include "FuzzSupport.h"
#include "HotkeyFileInput.h"
#include "HotkeySetFile.h"
#include "LegacyKeyboardFile.h"
#include "SchemaCheck.h"
#include "XmlDocument.h"

#include <QCoreApplication>
#include <QStringList>
#include <QUrl>
#include <QXmlStreamReader>

namespace {

using namespace CUI;
using Kind = HotkeyFileInput::Kind;

const QLatin1String schemaInstance("http://www.w3.org/2001/XMLSchema-instance");

/// All that a reader makes of the bytes, up to the end or an error.
struct View {
    QStringList events;
    bool isWellFormed = false;
};

View viewOf(const QByteArray &bytes)
{
    View view;
    QXmlStreamReader reader(bytes);
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::StartDocument || token == QXmlStreamReader::Invalid)
            continue; // the one place in which a document and its checked text may differ
        if (token == QXmlStreamReader::Characters && view.events.isEmpty())
            continue; // the blanks in place of the declaration
        QString event = reader.tokenString() + reader.qualifiedName() + reader.namespaceUri()
                        + reader.text() + reader.processingInstructionTarget()
                        + reader.processingInstructionData();
        for (const QXmlStreamAttribute &attribute : reader.attributes()) {
            event += QLatin1Char('|') + attribute.qualifiedName() + attribute.namespaceUri()
                     + QLatin1Char('=') + attribute.value();
        }
        view.events << event;
    }
    view.isWellFormed = !reader.hasError();
    return view;
}

void checkIsHarmless(const XmlDocument &document)
{
    QXmlStreamReader reader(document.utf8());
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        Fuzz::require(token != QXmlStreamReader::DTD, "no document type is let through");
        Fuzz::require(reader.documentEncoding().isEmpty(), "no declared encoding is let through");
        if (token != QXmlStreamReader::StartElement) // attributes of a tag in error remain, too
            continue;
        for (const QXmlStreamAttribute &attribute : reader.attributes())
            Fuzz::require(attribute.namespaceUri() != schemaInstance
                                  || attribute.name().endsWith(QLatin1String("chemaLocation")),
                          "no instruction to the schema processor is let through");
    }
}

bool isValid(const XmlDocument &document, Kind kind)
{
    return SchemaCheck::check(document, QUrl(QStringLiteral("file:///document.xml")),
                              HotkeyFileInput::schemaPath(kind))
            .isValid;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = Fuzz::bytesOf(data, size);
    const XmlDocument document(bytes);
    Fuzz::require(!document.refusal() || document.utf8().isEmpty(), "a refused text is kept back");
    checkIsHarmless(document);
    const View view = viewOf(document.utf8());
    const View toolkitsView = document.refusal() ? View() : viewOf(bytes);
    if (view.isWellFormed && toolkitsView.isWellFormed)
        Fuzz::require(view.events == toolkitsView.events, "the checked text says the same");

    const bool isBase = isValid(document, Kind::Base);
    const bool isSet = isValid(document, Kind::Set);
    const bool isLegacy = isValid(document, Kind::Legacy);
    Fuzz::require(view.isWellFormed || !(isBase || isSet || isLegacy),
                  "only a well-formed document is valid");
    Fuzz::require(!isBase || !BaseHotkeyFile::read(document).error, "a valid base file is read");
    Fuzz::require(!isSet
                          || (!HotkeySetFile::read(document).error
                              && HotkeySetFile::readMetadata(document)),
                  "a valid set is read");
    Fuzz::require(!isLegacy || LegacyKeyboardFile::read(document, ShortcutTransformation::Assign),
                  "a valid keyboard file is read");
    return 0;
}
