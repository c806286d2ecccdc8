#pragma once

#include "Scene.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace Studio {

/// The scene and the history of its edits.
class Document : public QObject
{
    Q_OBJECT

public:
    using Change = std::function<void(Scene &)>;

    explicit Document(QObject *parent = nullptr);

    /// What is to be seen: the preview, if there is one.
    const Scene &scene() const;

    /// Makes a change that can be undone. False, without a trace, when it changes nothing.
    bool edit(const QString &name, const Change &change);
    /// Shows a change of the current scene that takes the place of the one shown before.
    void preview(const Change &change);
    /// Makes the preview an edit, or drops it.
    void commitPreview(const QString &name);
    void dropPreview();
    /// Changes the scene outside of the history: the passing of time.
    void adjust(const Change &change);

    void undo() { goTo(m_current - 1); }
    void redo() { goTo(m_current + 1); }
    void goTo(int step);
    int currentStep() const { return m_current; }
    /// The names of all edits, the start first.
    QStringList history() const;
    /// Replaces the scene and empties the history.
    void reset(const Scene &scene);

Q_SIGNALS:
    void changed();

private:
    struct Step {
        QString name;
        Scene scene;
    };

    std::vector<Step> m_steps;
    int m_current = 0;
    std::optional<Scene> m_preview;
};

} // namespace Studio
