#pragma once

namespace Studio {

class ActionTable;
class MainWindow;

/// What the application can do, by the part of the catalogue that names it.
namespace Actions {

void addEdit(ActionTable &table, MainWindow &window);
void addWindows(ActionTable &table, MainWindow &window);
void addViewport(ActionTable &table, MainWindow &window);
void addObject(ActionTable &table, MainWindow &window);
void addMesh(ActionTable &table, MainWindow &window);
void addBrushes(ActionTable &table, MainWindow &window);
void addUv(ActionTable &table, MainWindow &window);
void addNodes(ActionTable &table, MainWindow &window);
void addTimeline(ActionTable &table, MainWindow &window);
void addOutliner(ActionTable &table, MainWindow &window);
void addRendering(ActionTable &table, MainWindow &window);

} // namespace Actions
} // namespace Studio
