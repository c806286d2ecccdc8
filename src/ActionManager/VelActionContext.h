#pragma once

#include <QString>

namespace CUI {

/// A group of actions within which one hotkey may belong to one action only.
class VelActionContext
{
public:
    /// The arguments are what the functions of their names answer.
    VelActionContext(unsigned long id, const QString &name) : m_id(id), m_name(name) { }

    /// The context's number, 0 to 4294967295; equal to the key it is registered under.
    unsigned long id() const { return m_id; }
    /// The display name.
    QString name() const { return m_name; }

private:
    unsigned long m_id;
    QString m_name;
};

} // namespace CUI
