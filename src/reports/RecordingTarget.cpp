#include "reports/RecordingTarget.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace zy {

double RecordingTarget::textWidth(const std::string& text) {
  return static_cast<double>(text.size()) * font_.points * 0.5 / 72.0;
}

void RecordingTarget::drawText(double x, double y, const std::string& text) {
  items_.push_back({sheet_, true, x, y, x, y, 0, font_, text});
}

void RecordingTarget::drawLine(double x1, double y1, double x2, double y2, double widthPixels) {
  items_.push_back({sheet_, false, x1, y1, x2, y2, widthPixels, font_, {}});
}

std::vector<std::string> RecordingTarget::lines(int sheet, const std::string& sep) const {
  // Texts whose tops lie within a hundredth of an inch share a line.
  std::map<long, std::vector<const Item*>> rows;
  for (const Item& it : items_)
    if (it.sheet == sheet && it.isText) rows[std::lround(it.y * 100)].push_back(&it);
  std::vector<std::string> out;
  for (auto& [key, row] : rows) {
    std::stable_sort(row.begin(), row.end(), [](const Item* a, const Item* b) { return a->x < b->x; });
    std::string s;
    for (const Item* it : row) s += (s.empty() ? "" : sep) + it->text;
    out.push_back(s);
  }
  return out;
}

std::vector<std::string> RecordingTarget::texts() const {
  std::vector<std::string> out;
  for (const Item& it : items_)
    if (it.isText) out.push_back(it.text);
  return out;
}

}  // namespace zy
