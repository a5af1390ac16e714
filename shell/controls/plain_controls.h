// What shows and is pressed, and holds nothing that the user fills in.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "shell/controls/control.h"
#include "shell/controls/picture.h"

namespace wrenbit {

// A control with a text that code sets and the user only reads.
class Captioned : public Control {
 public:
  Captioned(Control& holder, Place place, std::string first_caption, Font font = {});
  const std::string& Caption() const { return caption; }
  void Set_Caption(std::string value) { Store(caption, std::move(value)); }
  void Reset() override;

 protected:
  Captioned(Form& self, std::string first_caption);

 private:
  std::string first;
  std::string caption;
};

class Label : public Captioned {
 public:
  Label(Control& holder, Place place, std::string first_caption, Font font = {},
        Alignment alignment = Alignment::Left, std::optional<std::uint32_t> colour = {})
      : Captioned(holder, place, std::move(first_caption), font), Align(alignment), ForeColor(colour) {}
  const Alignment Align;
  const std::optional<std::uint32_t> ForeColor;  // 0xRRGGBB; the desktop's own when there is none.
};

class PictureBox : public Control {
 public:
  PictureBox(Control& holder, Place place, Picture picture) : Control(holder, place), Image(picture) {}
  const Picture Image;
};

// A thin rule across its place.
class Line : public Control {
 public:
  Line(Control& holder, Place place, std::uint32_t colour) : Control(holder, place), Colour(colour) {}
  const std::uint32_t Colour;  // 0xRRGGBB
};

class Frame : public Captioned {
 public:
  using Captioned::Captioned;
  std::function<void()> Click;
};

class CommandButton : public Captioned {
 public:
  CommandButton(Control& holder, Place place, std::string first_caption, Font font = {},
                Picture picture = Picture::None)
      : Captioned(holder, place, std::move(first_caption), font), Image(picture) {}
  const Picture Image;   // Above the caption.
  bool Default = false;  // The enter key presses it, unless another button has the focus.
  bool Cancel = false;   // The escape key presses it.
  std::function<void()> Click;
};

// A menu, an entry of one, or a separator, whose caption is "-". "&" stands before the mnemonic.
class Menu : public Captioned {
 public:
  Menu(Control& holder, std::string first_caption) : Captioned(holder, {}, std::move(first_caption)) {}
  bool Separator() const { return Caption() == "-"; }
  std::function<void()> Click;
};

}  // namespace wrenbit
