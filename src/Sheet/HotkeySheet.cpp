#include "HotkeySheet.h"

#include "ActionMatcher.h"
#include "ICuiActionManager.h"
#include "QvelMessageLog.h"
#include "QvelShortcutManager.h"
#include "SheetHtml.h"
#include "SheetPdf.h"
#include "SheetText.h"
#include "WholeFile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QLocale>

#include <algorithm>
#include <array>
#include <set>
#include <utility>

namespace CUI {

namespace {

bool isBefore(const QString &a, const QString &b)
{
    const int order = a.compare(b, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : a < b;
}

/// An action with all that its place on the sheet depends on.
struct Placed {
    unsigned long contextId;
    QString context;
    QString category;
    HotkeySheet::Entry entry;
};

bool standsBefore(const Placed &a, const Placed &b)
{
    if (a.context != b.context)
        return isBefore(a.context, b.context);
    if (a.contextId != b.contextId)
        return a.contextId < b.contextId;
    if (a.category != b.category)
        return isBefore(a.category, b.category);
    if (a.entry.action != b.entry.action)
        return isBefore(a.entry.action, b.entry.action);
    return a.entry.identifier < b.entry.identifier;
}

std::array<Qt::KeyboardModifiers, 8> combinations()
{
    constexpr auto control = Qt::ControlModifier;
    constexpr auto shift = Qt::ShiftModifier;
    constexpr auto alt = Qt::AltModifier;
    return {{Qt::NoModifier, control, shift, alt, control | shift, control | alt, alt | shift,
             control | alt | shift}};
}

} // namespace

HotkeySheet::HotkeySheet() : m_title(QCoreApplication::translate("CUI::HotkeySheet", "Hotkeys")) { }

HotkeySheet::HotkeySheet(QvelShortcutManager &store, const ActionFilter &filter) : HotkeySheet()
{
    const ICuiActionManager *registry = ICuiActionManager::get();
    if (registry == nullptr)
        return;
    const ActionMatcher matcher(filter, store);
    std::vector<const VelAction *> chosen;
    for (const auto &entry : registry->actions()) {
        if (matcher.matches(*entry.second))
            chosen.push_back(entry.second.get());
    }
    add(chosen, store);
}

HotkeySheet::HotkeySheet(QvelShortcutManager &store, const std::vector<ActionIdentifier> &actions)
    : HotkeySheet()
{
    const ICuiActionManager *registry = ICuiActionManager::get();
    if (registry == nullptr)
        return;
    std::vector<const VelAction *> known;
    for (const ActionIdentifier &identifier : actions) {
        if (const VelAction *action = registry->getAction(identifier))
            known.push_back(action);
    }
    std::sort(known.begin(), known.end());
    known.erase(std::unique(known.begin(), known.end()), known.end());
    add(known, store);
}

void HotkeySheet::add(const std::vector<const VelAction *> &actions,
                      const QvelShortcutManager &store)
{
    const ICuiActionManager &registry = *ICuiActionManager::get();
    const auto &hotkeys = store.getShortcuts();
    std::vector<Placed> placed;
    for (const VelAction *action : actions) {
        const VelActionContext *context = registry.getActionContext(action->contextId());
        if (context == nullptr)
            continue;
        const QString category = action->category();
        const auto held = hotkeys.find(action->identifier());
        placed.push_back({context->id(),
                          context->name(),
                          category == context->name() ? QString() : category,
                          {action->identifier(), action->name(),
                           held == hotkeys.end() ? QStringList() : QStringList(held->second)}});
    }
    std::sort(placed.begin(), placed.end(), standsBefore);
    for (Placed &action : placed) {
        if (m_contexts.empty() || m_contexts.back().id != action.contextId)
            m_contexts.push_back({action.contextId, action.context, {}});
        std::vector<Category> &categories = m_contexts.back().categories;
        if (categories.empty() || categories.back().name != action.category)
            categories.push_back({action.category, {}});
        categories.back().entries.push_back(std::move(action.entry));
    }
}

int HotkeySheet::size() const
{
    std::size_t count = 0;
    for (const Context &context : m_contexts) {
        for (const Category &category : context.categories)
            count += category.entries.size();
    }
    return static_cast<int>(count);
}

void HotkeySheet::setKeyboard(const HotkeyKeyboard &keyboard)
{
    std::vector<unsigned long> contexts;
    std::set<ActionIdentifier> listed;
    for (const Context &context : m_contexts) {
        contexts.push_back(context.id);
        for (const Category &category : context.categories) {
            for (const Entry &entry : category.entries)
                listed.insert(entry.identifier);
        }
    }
    const auto isListed = [&listed](const HotkeyKeyboard::Holder &holder) {
        return listed.count(holder.action) != 0;
    };
    HotkeyKeyboard shown(keyboard);
    shown.setContexts(contexts);
    m_keyboards.clear();
    for (const Qt::KeyboardModifiers modifiers : combinations()) {
        shown.setModifiers(modifiers);
        const bool isUsed =
                std::any_of(shown.keys().begin(), shown.keys().end(), [&](const auto &key) {
                    return std::any_of(key.holders.begin(), key.holders.end(), isListed);
                });
        if (isUsed)
            m_keyboards.push_back(shown);
    }
}

QByteArray HotkeySheet::toHtml() const
{
    return SheetHtml::write(*this);
}

QByteArray HotkeySheet::toPdf(const QPageSize &pageSize) const
{
    return SheetPdf::write(*this, pageSize);
}

QByteArray HotkeySheet::toMarkdown() const
{
    return SheetText::markdown(*this);
}

QByteArray HotkeySheet::toCsv() const
{
    return SheetText::csv(*this);
}

bool HotkeySheet::save(const QString &path, const QPageSize &pageSize) const
{
    const auto fail = [&path](const QString &reason) {
        QvelMessageLog::getInstance().logErrorMessage(
                QStringLiteral("The hotkey sheet '%1' cannot be written: %2").arg(path, reason));
        return false;
    };
    const std::optional<Format> format = formatOf(path);
    if (!format)
        return fail(QStringLiteral("The suffix names no format of a sheet."));
    const QByteArray contents = *format == Format::Html       ? toHtml()
                                : *format == Format::Pdf      ? toPdf(pageSize)
                                : *format == Format::Markdown ? toMarkdown()
                                                              : toCsv();
    if (contents.isEmpty())
        return false; // the log has the reason already
    const QString error = WholeFile::save(path, contents);
    return error.isEmpty() || fail(error);
}

bool HotkeySheet::print(QPagedPaintDevice &device) const
{
    return SheetPdf::paint(*this, device);
}

std::optional<HotkeySheet::Format> HotkeySheet::formatOf(const QString &path)
{
    static const QHash<QString, Format> formats = {
            {QStringLiteral("html"), Format::Html}, {QStringLiteral("htm"), Format::Html},
            {QStringLiteral("pdf"), Format::Pdf},   {QStringLiteral("md"), Format::Markdown},
            {QStringLiteral("csv"), Format::Csv},   {QStringLiteral("markdown"), Format::Markdown},
    };
    const auto format = formats.find(QFileInfo(path).suffix().toLower());
    return format == formats.end() ? std::nullopt : std::optional<Format>(*format);
}

QPageSize HotkeySheet::defaultPageSize()
{
    const bool usesInches = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return QPageSize(usesInches ? QPageSize::Letter : QPageSize::A4);
}

} // namespace CUI
