#include "FileValidation.h"

#include "LazyLog.h"
#include "SchemaCheck.h"

#include <QCoreApplication>
#include <QString>

namespace CUI::FileValidation {

namespace {

// The schemas belong to the host's installation, beside its executable.
QString schemaPath(QLatin1String fileName)
{
    return QCoreApplication::applicationDirPath() + QLatin1Char('/') + fileName;
}

} // namespace

bool validateXml(const QString &file, const QString &schemaFile)
{
    if (file.isEmpty() || schemaFile.isEmpty())
        return false;
    const SchemaCheck::Result result = SchemaCheck::check(file, schemaFile);
    if (result.verdict == SchemaCheck::Verdict::Invalid) {
        logLazily(QvelMessageLog::Error, [&] {
            return QStringLiteral("Validation of '%1' \nagainst schema definition '%2' failed!\n%3 "
                                  "Line: %4 Column: %5")
                    .arg(file, schemaFile, result.error.text, QString::number(result.error.line),
                         QString::number(result.error.column));
        });
    }
    return result.verdict == SchemaCheck::Verdict::Valid;
}

bool validateShortcuts(const QString &path)
{
    return validateXml(path, schemaPath(QLatin1String("HotkeyMappingSchema.xsd")));
}

bool validateShortcutsTransforms(const QString &path)
{
    return validateXml(path, transformationSchemaPath());
}

bool validateLegacyKbdx(const QString &path)
{
    return validateXml(path, schemaPath(QLatin1String("LegacyKbdxSchema.xsd")));
}

QString transformationSchemaPath()
{
    return schemaPath(QLatin1String("HotkeyTransformationSchema.xsd"));
}

} // namespace CUI::FileValidation
