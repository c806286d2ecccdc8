#pragma once

#include <UiCustomizations/ActionIdentifier.h>

#include <QHash>
#include <QObject>
#include <QPointer>

#include <functional>
#include <vector>

class QKeyEvent;
class QWidget;

namespace CUI {
class QvelShortcutManager;
}

namespace Studio {

/// Gives the keys of a window to the actions that hold them.
///
/// A window has areas, each with a list of contexts: a key means in an area what the first of these
/// contexts has it mean. The area is the one with the keyboard focus, which follows a click. Where
/// text is typed, the keys that the text needs stay with it; other windows are left alone.
class KeyRouter : public QObject
{
    Q_OBJECT

public:
    using Contexts = std::vector<unsigned long>;

    /// Watches all widgets of the application. Owns neither @p manager nor @p window, which must
    /// outlive it.
    KeyRouter(CUI::QvelShortcutManager *manager, QWidget *window);
    ~KeyRouter() override;

    /// @p contexts is asked anew for each key.
    void addArea(QWidget *area, const std::function<Contexts()> &contexts);
    /// The area that has or last had the focus; the first one before that.
    QWidget *currentArea() const;
    /// Who holds the key in that area, and the empty identifier when nobody does.
    CUI::ActionIdentifier actionFor(const QKeyEvent &event, const QWidget *area) const;
    /// Ends all momentary actions, as if their keys were released.
    void releaseAll();

Q_SIGNALS:
    /// The key of an action was pressed, or repeats while it is held. A momentary action's key
    /// never repeats.
    void activated(const CUI::ActionIdentifier &action, bool repeated);
    /// The key of a momentary action was released, or the focus went elsewhere.
    void deactivated(const CUI::ActionIdentifier &action);
    void currentAreaChanged(QWidget *area);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *areaOf(const QWidget *widget) const;
    QWidget *areaForKeysOf(const QWidget *widget) const;
    void setCurrentArea(QWidget *area);
    bool press(QWidget *widget, const QKeyEvent &event);
    bool release(const QKeyEvent &event);
    bool isTyped(QWidget *widget, const QKeyEvent &event) const;
    void followClick(QWidget *widget);

    CUI::QvelShortcutManager *m_manager;
    QWidget *m_window;
    std::vector<QWidget *> m_areas;
    QHash<const QWidget *, std::function<Contexts()>> m_contexts;
    QPointer<QWidget> m_current;
    QHash<int, CUI::ActionIdentifier> m_held; ///< momentary actions by their keys
};

} // namespace Studio
