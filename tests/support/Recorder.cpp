#include "Recorder.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

using CUI::ActionIdentifier;
using CUI::QvelMessageLog;
using CUI::QvelShortcutManager;
using CUI::ShortcutTransformation;

namespace {

const QLatin1String linePrefix("log: ");

} // namespace

Recorder::Recorder(const QvelShortcutManager &manager)
{
    QvelMessageLog &log = QvelMessageLog::getInstance();
    log.setMessageLogLevel(QvelMessageLog::Debug);
    const auto note = [this](const QString &event) { m_events << event; };
    const auto noteSignal = [&](auto signal, const char *name) {
        connect(&manager, signal, this, [note, name] { note(QString::fromLatin1(name)); });
    };
    connect(&log, &QvelMessageLog::messageLogged, this,
            [note](const QString &line) { note(linePrefix + line); });
    connect(&manager, &QvelShortcutManager::shortcutAssigned, this,
            [note](const ActionIdentifier &id, const QString &shortcut) {
                note(QStringLiteral("assigned %1 %2").arg(id.toString(), shortcut));
            });
    connect(&manager, &QvelShortcutManager::shortcutUnassigned, this,
            [note](const ActionIdentifier &id, const QString &shortcut) {
                note(QStringLiteral("unassigned %1 %2").arg(id.toString(), shortcut));
            });
    connect(&manager, &QvelShortcutManager::shortcutTransformAdded, this,
            [note](const ShortcutTransformation &step) {
                note(QStringLiteral("added ") + step.toString());
            });
    connect(&manager, &QvelShortcutManager::shortcutConfigurationAboutToLoad, this,
            [note](const QString &path) { note(QStringLiteral("aboutToLoad ") + path); });
    connect(&manager, &QvelShortcutManager::shortcutConfigurationLoaded, this,
            [note](const QString &path) { note(QStringLiteral("loaded ") + path); });
    noteSignal(&QvelShortcutManager::shortcutTransformsCleared, "transformsCleared");
    noteSignal(&QvelShortcutManager::shortcutTransformsCollapsed, "collapsed");
    noteSignal(&QvelShortcutManager::shortcutsCleared, "cleared");
    noteSignal(&QvelShortcutManager::shortcutsModified, "modified");
    noteSignal(&QvelShortcutManager::shortcutsUnModified, "unmodified");
}

Recorder::~Recorder()
{
    QvelMessageLog::getInstance().setMessageLogLevel(QvelMessageLog::Warning);
}

QStringList Recorder::take()
{
    return std::exchange(m_events, {});
}

QStringList Recorder::takeSignals()
{
    QStringList events = take();
    events.erase(std::remove_if(events.begin(), events.end(),
                                [](const QString &event) { return event.startsWith(linePrefix); }),
                 events.end());
    return events;
}

QStringList Recorder::takeLines()
{
    const QStringList events = take().filter(QRegularExpression(QStringLiteral("^log: ")));
    QStringList lines;
    for (const QString &event : events)
        lines << event.mid(linePrefix.size());
    return lines;
}
