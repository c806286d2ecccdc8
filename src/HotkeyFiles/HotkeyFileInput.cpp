#include "HotkeyFileInput.h"

#include "QvelMessageLog.h"
#include "RegularFile.h"

#include <QCoreApplication>
#include <QUrl>

namespace CUI {

HotkeyFileInput::HotkeyFileInput(const QString &path)
    : m_path(path), m_bytes(RegularFile::read(path, XmlDocument::maximumSize))
{
    if (m_bytes)
        m_document = XmlDocument(*m_bytes);
}

KnownFile HotkeyFileInput::known() const
{
    return {m_path, m_bytes};
}

SchemaCheck::Result HotkeyFileInput::check(Kind kind) const
{
    return check(schemaPath(kind));
}

SchemaCheck::Result HotkeyFileInput::check(const QString &schemaPath) const
{
    if (!isOpen())
        return {};
    return SchemaCheck::check(m_document, QUrl::fromLocalFile(m_path), schemaPath);
}

bool HotkeyFileInput::validate(const QString &schemaPath)
{
    if (m_passedSchema == schemaPath)
        return true;
    const SchemaCheck::Result result = check(schemaPath);
    if (result.isValid)
        m_passedSchema = schemaPath;
    if (result.error) {
        m_fault = QStringLiteral("Validation of '%1' \nagainst schema definition '%2' failed!\n%3 "
                                 "Line: %4 Column: %5")
                          .arg(m_path, schemaPath, result.error->text,
                               QString::number(result.error->line),
                               QString::number(result.error->column));
        QvelMessageLog::getInstance().logErrorMessage(m_fault);
    }
    return result.isValid;
}

bool HotkeyFileInput::validate(Kind kind)
{
    return validate(schemaPath(kind));
}

// The schemas belong to the host's installation, beside its executable.
QString HotkeyFileInput::schemaPath(Kind kind)
{
    const QLatin1String name(kind == Kind::Base  ? "/HotkeyMappingSchema.xsd"
                             : kind == Kind::Set ? "/HotkeyTransformationSchema.xsd"
                                                 : "/LegacyKbdxSchema.xsd");
    return QCoreApplication::applicationDirPath() + name;
}

} // namespace CUI
