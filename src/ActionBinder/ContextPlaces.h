#pragma once

#include "HotkeyClaims.h"

#include <QMetaObject>
#include <QPointer>
#include <QWidget>

#include <cstddef>
#include <functional>
#include <unordered_map>
#include <vector>

namespace CUI {

/// The widgets in which the hotkeys of each context act, and which of two contexts comes first.
class ContextPlaces
{
public:
    using Widgets = std::vector<QPointer<QWidget>>;
    using Listener = std::function<void(unsigned long)>;

    /// Calls @p listener for a context when its last widget has been destroyed, unless @p owner has
    /// been destroyed before.
    ContextPlaces(QObject &owner, Listener listener);

    /// The context acts only in these widgets; nowhere without any. False when that is so already.
    bool setWidgets(unsigned long contextId, const std::vector<QWidget *> &widgets);
    /// The context acts in the whole window, as it does at first. False when that is so already.
    bool removeWidgets(unsigned long contextId);
    /// The widgets of the context; null when it acts in the whole window.
    const Widgets *widgetsOf(const HotkeyClaims::Context &context) const;

    void setOrder(const std::vector<unsigned long> &contextIds) { m_order = contextIds; }
    /// The place of the context in the order; the length of the order when it is not in it.
    std::size_t rankOf(const HotkeyClaims::Context &context) const;

private:
    struct Place {
        Widgets widgets;
        std::vector<QMetaObject::Connection> deaths;
    };

    void forgetWidget(unsigned long contextId, const QWidget *widget);

    QObject &m_owner;
    Listener m_listener;
    std::unordered_map<unsigned long, Place> m_places;
    std::vector<unsigned long> m_order;
};

} // namespace CUI
