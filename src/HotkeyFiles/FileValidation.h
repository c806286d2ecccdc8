#pragma once

class QString;

namespace CUI {

/// Validation of hotkey files as the user is told about it. The static members of
/// QvelShortcutManager of the same names forward here and document them.
namespace FileValidation {

bool validateXml(const QString &file, const QString &schemaFile);
bool validateShortcuts(const QString &path);
bool validateShortcutsTransforms(const QString &path);
bool validateLegacyKbdx(const QString &path);

/// The schema that hotkey set files are checked against.
QString transformationSchemaPath();

} // namespace FileValidation
} // namespace CUI
