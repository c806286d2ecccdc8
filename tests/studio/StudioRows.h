#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace Studio {
class MainWindow;
}

/// An action whose effect can be seen.
struct StudioRow {
    QString id;
    const char *view; ///< the object name of the view in which its key is pressed
    /// Brings the application to where the action has something to do; may be empty.
    std::function<void(Studio::MainWindow &)> prepare;
};

const std::vector<StudioRow> &studioRows();
