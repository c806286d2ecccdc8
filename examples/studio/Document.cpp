#include "Document.h"

namespace Studio {

namespace {

constexpr std::size_t longestHistory = 200;

} // namespace

Document::Document(QObject *parent) : QObject(parent)
{
    m_steps.push_back({QStringLiteral("Start"), Scene::sample()});
}

const Scene &Document::scene() const
{
    return m_preview ? *m_preview : m_steps[static_cast<std::size_t>(m_current)].scene;
}

bool Document::edit(const QString &name, const Change &change)
{
    dropPreview();
    Scene edited = scene();
    change(edited);
    if (edited == scene())
        return false;
    m_steps.resize(static_cast<std::size_t>(m_current) + 1);
    m_steps.push_back({name, edited});
    if (m_steps.size() > longestHistory)
        m_steps.erase(m_steps.begin());
    m_current = static_cast<int>(m_steps.size()) - 1;
    Q_EMIT changed();
    return true;
}

void Document::preview(const Change &change)
{
    m_preview = m_steps[static_cast<std::size_t>(m_current)].scene;
    change(*m_preview);
    Q_EMIT changed();
}

void Document::commitPreview(const QString &name)
{
    if (!m_preview)
        return;
    const Scene shown = *m_preview;
    edit(name, [&shown](Scene &scene) { scene = shown; });
}

void Document::dropPreview()
{
    if (!m_preview)
        return;
    m_preview.reset();
    Q_EMIT changed();
}

void Document::adjust(const Change &change)
{
    change(m_steps[static_cast<std::size_t>(m_current)].scene);
    Q_EMIT changed();
}

void Document::goTo(int step)
{
    if (step < 0 || step >= static_cast<int>(m_steps.size()) || step == m_current)
        return;
    m_preview.reset();
    m_current = step;
    Q_EMIT changed();
}

QStringList Document::history() const
{
    QStringList names;
    for (const Step &step : m_steps)
        names.append(step.name);
    return names;
}

void Document::reset(const Scene &scene)
{
    m_preview.reset();
    m_steps.assign(1, {QStringLiteral("Start"), scene});
    m_current = 0;
    Q_EMIT changed();
}

} // namespace Studio
