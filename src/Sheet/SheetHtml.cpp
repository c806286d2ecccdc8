#include "SheetHtml.h"

#include "HotkeySheet.h"
#include "KeyboardSvg.h"
#include "SheetText.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QXmlStreamWriter>

#include <utility>

// Outside of any namespace, since the name of the resource is declared where it is used.
static QByteArray readResource(const char *name)
{
    Q_INIT_RESOURCE(HotkeySheet);
    QFile file(QStringLiteral(":/UiCustomizations/sheet/") + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

namespace CUI::SheetHtml {

namespace {

using Attributes = std::initializer_list<std::pair<const char *, QString>>;

/// Names become text by way of the XML writer alone.
class Page
{
public:
    explicit Page(const HotkeySheet &sheet) : m_sheet(sheet), m_xml(&m_file)
    {
        m_file.open(QIODevice::WriteOnly);
        m_xml.setAutoFormattingIndent(0);
    }

    QByteArray write();

private:
    void open(const char *element, Attributes attributes = {});
    void close() { m_xml.writeEndElement(); }
    void element(const char *name, const QString &text, Attributes attributes = {});
    void raw(const char *element, const QByteArray &contents);

    void writeHead();
    void writeSearch();
    void writeContents();
    void writeContext(int number);
    void writeCategory(const HotkeySheet::Category &category);
    void writeEntry(const HotkeySheet::Entry &entry);
    void writeKeyboards();
    QByteArray style() const;
    static QString idOf(int context) { return QStringLiteral("context-%1").arg(context + 1); }

    const HotkeySheet &m_sheet;
    QBuffer m_file;
    QXmlStreamWriter m_xml;
};

/// What a policy calls a script or a style by.
QString sourceOf(const QByteArray &contents)
{
    const QByteArray hash = QCryptographicHash::hash(contents, QCryptographicHash::Sha256);
    return QStringLiteral("'sha256-%1'").arg(QString::fromLatin1(hash.toBase64()));
}

void Page::open(const char *element, Attributes attributes)
{
    m_xml.writeStartElement(QString::fromLatin1(element));
    for (const auto &attribute : attributes)
        m_xml.writeAttribute(QString::fromLatin1(attribute.first), attribute.second);
}

void Page::element(const char *name, const QString &text, Attributes attributes)
{
    open(name, attributes);
    m_xml.writeCharacters(SheetText::oneLine(text));
    close();
}

/// The writer would escape what a browser takes as it is.
void Page::raw(const char *element, const QByteArray &contents)
{
    open(element);
    m_xml.writeCharacters(QString()); // ends the tag
    m_file.write(contents);
    close();
}

QByteArray Page::write()
{
    m_xml.writeDTD(QStringLiteral("<!DOCTYPE html>"));
    m_xml.setAutoFormatting(true); // not before, or the file would begin with a line break
    open("html",
         {{"xmlns", QStringLiteral("http://www.w3.org/1999/xhtml")},
          {"lang", QCoreApplication::translate("CUI::HotkeySheet", "en",
                                               "the code of this translation's language")}});
    writeHead();
    open("body");
    open("header");
    element("h1", m_sheet.title());
    writeSearch();
    writeContents();
    close();
    open("main");
    for (std::size_t i = 0; i < m_sheet.contexts().size(); ++i)
        writeContext(static_cast<int>(i));
    if (!m_sheet.keyboards().empty())
        writeKeyboards();
    close();
    raw("script", readResource("sheet.js"));
    m_xml.writeEndDocument();
    return m_file.data();
}

/// One style element for all, since the policy names it.
QByteArray Page::style() const
{
    const QByteArray style = readResource("sheet.css");
    return m_sheet.keyboards().empty() ? style : style + KeyboardSvg::styleSheet().toUtf8();
}

void Page::writeHead()
{
    const QByteArray style = this->style();
    const QString policy =
            QStringLiteral("default-src 'none'; style-src %1; script-src %2; base-uri 'none'; "
                           "form-action 'none'")
                    .arg(sourceOf(style), sourceOf(readResource("sheet.js")));
    const auto meta = [this](Attributes attributes) {
        open("meta", attributes);
        close();
    };
    open("head");
    meta({{"charset", QStringLiteral("utf-8")}});
    meta({{"http-equiv", QStringLiteral("Content-Security-Policy")}, {"content", policy}});
    meta({{"name", QStringLiteral("viewport")},
          {"content", QStringLiteral("width=device-width, initial-scale=1")}});
    element("title", m_sheet.title());
    raw("style", style);
    close();
}

/// Hidden until the script shows it: without scripts it would do nothing.
void Page::writeSearch()
{
    const QString text = QCoreApplication::translate("CUI::HotkeySheet", "Search");
    open("p", {{"id", QStringLiteral("search")}, {"hidden", QStringLiteral("hidden")}});
    open("input", {{"type", QStringLiteral("search")},
                   {"placeholder", text},
                   {"aria-label", text},
                   {"autocomplete", QStringLiteral("off")}});
    close();
    open("output");
    m_xml.writeCharacters(QString());
    close();
    close();
}

void Page::writeContents()
{
    const auto link = [this](const QString &id, const QString &name) {
        open("li");
        element("a", name, {{"href", QLatin1Char('#') + id}});
        close();
    };
    open("nav");
    open("ul");
    for (std::size_t i = 0; i < m_sheet.contexts().size(); ++i)
        link(idOf(static_cast<int>(i)), m_sheet.contexts()[i].name);
    if (!m_sheet.keyboards().empty())
        link(QStringLiteral("keyboard"), SheetText::keyboardHeading());
    close();
    close();
}

void Page::writeContext(int number)
{
    const HotkeySheet::Context &context = m_sheet.contexts()[static_cast<std::size_t>(number)];
    open("section", {{"id", idOf(number)}});
    element("h2", context.name);
    open("div", {{"class", QStringLiteral("columns")}});
    for (const HotkeySheet::Category &category : context.categories)
        writeCategory(category);
    close();
    close();
}

void Page::writeCategory(const HotkeySheet::Category &category)
{
    open("section");
    if (!category.name.isEmpty())
        element("h3", category.name);
    open("dl");
    for (const HotkeySheet::Entry &entry : category.entries)
        writeEntry(entry);
    close();
    close();
}

void Page::writeEntry(const HotkeySheet::Entry &entry)
{
    open("div");
    element("dt", entry.action);
    open("dd");
    for (const QString &hotkey : entry.hotkeys) {
        const QString shown = SheetText::shownHotkey(hotkey);
        // Found by the portable text, too.
        if (shown == hotkey)
            element("kbd", shown);
        else
            element("kbd", shown, {{"title", SheetText::oneLine(hotkey)}});
    }
    m_xml.writeCharacters(QString());
    close();
    close();
}

/// The search counts and hides sections, and this is none.
void Page::writeKeyboards()
{
    open("aside", {{"id", QStringLiteral("keyboard")}});
    element("h2", SheetText::keyboardHeading());
    for (const HotkeyKeyboard &keyboard : m_sheet.keyboards()) {
        open("figure");
        element("figcaption", HotkeyKeyboard::textOf(keyboard.modifiers()));
        KeyboardSvg::write(m_xml, keyboard);
        close();
    }
    close();
}

} // namespace

QByteArray write(const HotkeySheet &sheet)
{
    return Page(sheet).write();
}

} // namespace CUI::SheetHtml
