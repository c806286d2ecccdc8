#pragma once

#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QObject>
#include <QStringList>

/// Writes down, in their order, the signals of a store and the lines of the log. Starts with the
/// log at level Debug, and returns it to Warning.
class Recorder : public QObject
{
    Q_OBJECT

public:
    explicit Recorder(const CUI::QvelShortcutManager &manager);
    ~Recorder() override;

    /// The events since the last call: a signal as its name and arguments, a line behind "log: ".
    QStringList take();
    /// The same without the lines.
    QStringList takeSignals();
    /// The same without the signals.
    QStringList takeLines();

private:
    QStringList m_events;
};
