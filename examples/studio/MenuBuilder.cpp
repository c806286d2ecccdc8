#include "MenuBuilder.h"

#include "Areas.h"
#include "CustomizeDialog.h"
#include "HotkeyActions.h"
#include "Icons.h"
#include "MainWindow.h"
#include "ModifierHints.h"
#include "SampleHost.h"

#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>

namespace Studio::MenuBuilder {

namespace {

using Catalogue = Host::HostCatalogue;

QString escaped(const QString &text)
{
    return QString(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

/// The actions of a context by category, both in the order of the catalogue.
std::vector<std::pair<QString, std::vector<const Catalogue::Action *>>> categories(
        const Catalogue &catalogue, unsigned long context)
{
    std::vector<std::pair<QString, std::vector<const Catalogue::Action *>>> result;
    for (const Catalogue::Action &action : catalogue.actions) {
        if (action.contextId != context)
            continue;
        auto category = std::find_if(result.begin(), result.end(), [&action](const auto &entry) {
            return entry.first == action.category;
        });
        if (category == result.end())
            category = result.insert(result.end(), {action.category, {}});
        category->second.push_back(&action);
    }
    return result;
}

void fill(QMenu *menu, const std::vector<const Catalogue::Action *> &actions,
          HotkeyActions &entries)
{
    for (const Catalogue::Action *action : actions)
        menu->addAction(entries.entry(action->identifier));
}

/// One menu with a submenu for each category, or with all actions if there is one category.
void fillByCategory(QMenu *menu, const Catalogue &catalogue, unsigned long context,
                    HotkeyActions &entries)
{
    const auto all = categories(catalogue, context);
    for (const auto &category : all) {
        if (all.size() == 1 || category.first.isEmpty())
            fill(menu, category.second, entries);
        else
            fill(menu->addMenu(escaped(category.first)), category.second, entries);
    }
}

void addPanels(MainWindow &window)
{
    QMenu *menu = window.menuBar()->addMenu(QStringLiteral("&Panels"));
    for (const QDockWidget *dock : window.findChildren<QDockWidget *>())
        menu->addAction(dock->toggleViewAction());
    menu->addSeparator();
    QAction *customize = menu->addAction(Icons::make(QStringLiteral("keyboard")),
                                         QStringLiteral("&Customize Hotkeys..."));
    customize->setObjectName(QStringLiteral("customizeHotkeys"));
    QObject::connect(customize, &QAction::triggered, &window,
                     [&window] { window.showCustomizeDialog(); });
    QAction *hints = menu->addAction(QStringLiteral("&List Hotkeys While Ctrl Is Held"));
    hints->setObjectName(QStringLiteral("listHotkeys"));
    hints->setCheckable(true);
    QObject::connect(hints, &QAction::toggled, &window, [&window](bool isOn) {
        window.hints().setModifier(isOn ? Qt::ControlModifier : Qt::NoModifier);
    });
}

} // namespace

void build(MainWindow &window)
{
    const Catalogue &catalogue = window.host().catalogue();
    HotkeyActions &entries = window.hotkeyActions();
    std::vector<const Catalogue::Context *> modes;
    const std::vector<unsigned long> everywhere = catalogue.everywhere();
    const auto first = everywhere.empty() ? std::nullopt : std::make_optional(everywhere.front());
    for (const Catalogue::Context &context : catalogue.contexts) {
        if (Areas::modes(catalogue).contains(context.name)) {
            modes.push_back(&context);
        } else if (context.id == first) {
            for (const auto &category : categories(catalogue, context.id))
                fill(window.menuBar()->addMenu(escaped(category.first)), category.second, entries);
        } else {
            QMenu *menu = window.menuBar()->addMenu(escaped(context.name));
            fillByCategory(menu, catalogue, context.id, entries);
        }
    }
    if (!modes.empty()) {
        QMenu *all = window.menuBar()->addMenu(QStringLiteral("&Modes"));
        for (const Catalogue::Context *mode : modes)
            fillByCategory(all->addMenu(escaped(mode->name)), catalogue, mode->id, entries);
    }
    addPanels(window);
}

} // namespace Studio::MenuBuilder
