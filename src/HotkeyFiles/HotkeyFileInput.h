#pragma once

#include "KnownFile.h"
#include "SchemaCheck.h"
#include "UiCustomizationsExport.h"
#include "XmlDocument.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace CUI {

/// A hotkey file from outside, read once. There is no other way from such a file to a reader.
class CUI_CORE_EXPORT HotkeyFileInput
{
public:
    /// What a file is checked against: the schema of that kind in the directory of the executable.
    enum class Kind { Base, Set, Legacy };

    /// Reads and screens the file. Only regular files can be opened.
    explicit HotkeyFileInput(const QString &path);

    const QString &path() const { return m_path; }
    bool isOpen() const { return m_bytes.has_value(); }
    /// Empty unless the file is open and passed the screening.
    const XmlDocument &document() const { return m_document; }

    /// What the file held.
    KnownFile known() const;

    /// Checks the file against the schema of that kind.
    SchemaCheck::Result check(Kind kind) const;
    /// True when the file follows the schema. Logs as an error what is wrong with the file or the
    /// schema, but not that one of them cannot be opened. A file that has passed is not checked
    /// again.
    bool validate(const QString &schemaPath);
    /// The same with the schema of that kind.
    bool validate(Kind kind);
    /// What validate() logged; null when it found no fault.
    const QString &fault() const { return m_fault; }

    static QString schemaPath(Kind kind);

private:
    SchemaCheck::Result check(const QString &schemaPath) const;

    QString m_path;
    QString m_fault;
    QString m_passedSchema;
    std::optional<QByteArray> m_bytes;
    XmlDocument m_document;
};

} // namespace CUI
