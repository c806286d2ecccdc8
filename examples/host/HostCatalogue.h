#pragma once

#include <UiCustomizations/ActionIdentifier.h>
#include <UiCustomizations/HotkeyAudit.h>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace Host {

/// What a host directory says about the application: its contexts, its actions, and which of the
/// shipped hotkey sets is in use until the user chooses another.
struct HostCatalogue {
    struct Context {
        unsigned long id = 0;
        QString name;
        /// Its hotkeys count wherever the focus is, behind those of the part that has it.
        bool everywhere = false;
    };

    struct Action {
        CUI::ActionIdentifier identifier;
        QString name;
        unsigned long contextId = 0;
        QString category;
        bool momentary = false;
        /// In portable text form, in whatever spelling the file has them.
        QStringList accelerators;
    };

    /// The file name of the default set in the directory of the shipped sets; empty when the
    /// host ships none.
    QString defaultSet;
    /// In the order of the file, each with an id of its own.
    std::vector<Context> contexts;
    /// In the order of the file, each with an identifier of its own and a context that exists.
    std::vector<Action> actions;
    /// The contexts that count at once in a part of the window, the first that is asked first: a
    /// list for each mode, for example, with the view that the mode is in.
    std::vector<std::vector<unsigned long>> together;
    /// A line with the file, the place and the reason for each accelerator that was left out, since
    /// it names no single key combination.
    QStringList warnings;

    /// The contexts that count everywhere, in the order in which the application asks them.
    std::vector<unsigned long> everywhere() const;

    /// What an audit is told of the contexts; the other options are as they are at first.
    CUI::HotkeyAudit::Options auditOptions() const;

    /// Reads the JSON text of a catalogue. Nothing when anything in it is wrong; @p error then
    /// holds one line with @p fileName, the place and the reason.
    static std::optional<HostCatalogue> parse(const QByteArray &json, const QString &fileName,
                                              QString &error);

    /// Reads a catalogue file likewise. Only a regular file of at most 16 MiB is read.
    static std::optional<HostCatalogue> load(const QString &path, QString &error);
};

} // namespace Host
