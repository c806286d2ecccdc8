#pragma once

#include "ViewSettings.h"

#include <QObject>

#include <functional>

namespace Studio {

/// The one copy of the view settings; the views follow its signal.
class ViewState : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    const ViewSettings &get() const { return m_settings; }
    void change(const std::function<void(ViewSettings &)> &change)
    {
        change(m_settings);
        Q_EMIT changed();
    }

Q_SIGNALS:
    void changed();

private:
    ViewSettings m_settings;
};

} // namespace Studio
