#pragma once

#include <QObject>

#include <functional>

namespace CUI {

/// Calls a function when the language of the application has changed.
class LanguageWatch : public QObject
{
public:
    explicit LanguageWatch(std::function<void()> changed);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::function<void()> m_changed;
};

} // namespace CUI
