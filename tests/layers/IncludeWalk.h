#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

namespace CUI {

/// Places the files that a pattern covers in a layer. The pattern is a wildcard over the path
/// below the root, in which '*' does not cross a '/'.
struct LayerRule {
    QString pattern;
    int layer = 0;
};

/// What a tree is held to.
struct LayerRules {
    /// The first rule that covers a file places it.
    QVector<LayerRule> layers;
    /// Files of this layer and above may use widgets.
    int firstWidgetLayer = 0;
    /// Files of this layer see the library only as <UiCustomizations/Class.h>.
    int hostLayer = 0;
    /// Names of the headers that declare widgets, as they stand between angle brackets.
    QSet<QString> widgetHeaders;
    /// Headers that come from outside the walked folders. Hosts put them in angle brackets.
    QSet<QString> outsideHeaders;
    /// The one folder whose files may ask for the operating system, with a '/' at its end.
    QString platformFolder;
};

struct WalkResult {
    /// Every C++ file walked, below the root, in sorted order.
    QStringList files;
    /// One line a fault, "path:line: what is wrong", in the order of the files.
    QStringList findings;
};

/// Reads the C++ files in @p folders of @p root and holds their include lines against @p rules.
WalkResult walkIncludes(const QString &root, const QStringList &folders, const LayerRules &rules);

} // namespace CUI
