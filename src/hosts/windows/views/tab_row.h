#pragma once

#include <string>
#include <vector>

#include "hosts/windows/views/control_view.h"

namespace windows {

// What tab strips and tab controls share: a native tab control whose headings we draw.
class TabRowView : public ControlView {
 public:
  using ControlView::ControlView;
  [[nodiscard]] std::optional<LRESULT> notified(NMHDR& notice) override;

  // Turns to the next heading as a click on it would, round the ends.
  void turn(int steps);

 protected:
  void createRow(const std::vector<std::string>& captions);
  [[nodiscard]] int chosen() const;
  void showChosen(int index);
  [[nodiscard]] int count() const { return static_cast<int>(captions_.size()); }
  [[nodiscard]] const std::wstring& caption(int index) const { return captions_[static_cast<std::size_t>(index)]; }
  [[nodiscard]] RECT headingRect(int index) const;
  // Whether the keyboard is here, and has been used to get here.
  [[nodiscard]] bool hasRing() const;
  [[nodiscard]] bool isLit(int index) const { return index == lit_; }
  // The user picks a heading; `again` when it is the one already chosen.
  virtual void picked(int index, bool again) = 0;
  [[nodiscard]] forms::FontSpec fontSpec() const override;  // of the chosen heading, which takes most room
  [[nodiscard]] std::optional<LRESULT> handle(UINT message, WPARAM wide, LPARAM large) override;

 private:
  [[nodiscard]] int headingAt(LPARAM point) const;
  void light(int index);

  std::vector<std::wstring> captions_;
  int lit_ = -1;
};

}  // namespace windows
