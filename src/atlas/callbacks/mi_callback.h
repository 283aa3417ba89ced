#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/tree_view.h"
#include "platform/map_engine.h"

namespace atlas {

class Atlas;

// What the map engine calls back when the user clicks on the map with one of the program's tools, or picks the
// program's entry of the map's shortcut menu. Every method ends silently at its first failure.
class MICallback : public platform::CallbackObject {
 public:
  // The atlas outlives the engine that holds the object.
  explicit MICallback(Atlas& atlas) : atlas_(atlas) {}

  [[nodiscard]] std::string className() const override { return "MICallback"; }
  [[nodiscard]] std::vector<std::string> methods() const override;
  bool invoke(const std::string& method, const std::string& message) override;

  // The statistics of the object under the point, from the top layer's table.
  void infoEstadisticas(const std::string& message);
  // Every object under the point, in any layer.
  void info(const std::string& message);
  // The year's figures of the units under the point; the smallest becomes the current unit.
  void InfoDatos(const std::string& message);
  // Clears the selection, the tree and a query's layer.
  void borraseleccion(const std::string& message);

 private:
  // The point clicked, as the texts that the engine sent.
  struct Point {
    std::string x;
    std::string y;
  };

  void showWaitNotice();
  void hideWaitNotice();
  // Nothing, after a message box, when the message is none of the engine's.
  [[nodiscard]] std::optional<Point> parseCallbackMessage(const std::string& message);

  void addHit(int hit, const Point& point, std::string& table);
  void listStatistics(const std::string& layer);
  void addStatistic(const std::string& layer, forms::Node* groupNode);
  // A field of a table's current row; the column with its point.
  [[nodiscard]] std::string field(const std::string& table, const std::string& column);
  [[nodiscard]] bool listUnitsUnder(const Point& point);
  void highlightUnit(const Point& point);

  Atlas& atlas_;
};

}  // namespace atlas
