// What every control has: a place on its window, whether it is enabled and visible, and the one hook by which
// a view follows it. Controls are plain objects; without a view they behave the same and nothing shows.
#pragma once

#include <functional>
#include <string>
#include <utility>

namespace wrenbit {

class Form;

// Twips (1/1440 inch, 15 to a pixel at 96 dpi), from the corner of the container.
struct Place {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;
};

enum class Typeface {
  Proportional,  // "MS UI Gothic" or a relative.
  FixedPitch,    // "ＭＳ ゴシック" or a relative.
  Display,       // "Arial Black" or a relative.
};

struct Font {
  Typeface Face = Typeface::Proportional;
  double Points = 9;
};

enum class Alignment { Left, Centre, Right };

class Control {
 public:
  // The container is a frame or a form and outlives the control.
  Control(Control& holder, Place place, Font font = {});
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  bool Enabled() const { return enabled; }
  void Set_Enabled(bool value);
  bool Visible() const { return visible; }
  void Set_Visible(bool value);

  // Why what the control shows is not so any more; empty while it is. Its view turns grey and tells this in
  // place of the tip.
  const std::string& OutOfDate() const { return out_of_date; }
  void Set_OutOfDate(std::string why) { Store(out_of_date, std::move(why)); }

  // What the control does, for who rests the pointer on it and for a screen reader. Empty where the caption
  // says enough.
  const std::string& ToolTipText() const { return tool_tip_text; }
  void Set_ToolTipText(std::string text) { Store(tool_tip_text, std::move(text)); }

  // True when the control and all that hold it are enabled: only then can the user reach it.
  bool Reachable() const;

  // Gives the keyboard to this control. Refused, with no effect, while its form is hidden or it is not
  // reachable.
  bool Set_Focus();

  // Enabled, up to date, and with the texts and values with which the control was made: what unloading a form
  // does to what lies on it. Leaves where it lies, whether it shows, its tip and what a screen reader calls
  // it.
  virtual void Reset();

  Form& Window() const { return *form; }
  Control* Container() const { return container; }

  const Place At;
  const Font Lettering;
  // What a screen reader calls the control. Empty where the caption says it.
  std::string AccessibleName;

  // Called after any property has changed. Set by the view, and by nobody else.
  std::function<void()> Changed;

 protected:
  explicit Control(Form& self);  // A form holds itself.
  void Tell() const {
    if (Changed) Changed();
  }
  // Stores a property and tells the view when it is a new value. True when it was.
  template <class T>
  bool Store(T& property, T value) const {
    if (property == value) return false;
    property = std::move(value);
    Tell();
    return true;
  }

 private:
  Control* container = nullptr;
  Form* form = nullptr;
  std::string out_of_date;
  std::string tool_tip_text;
  bool enabled = true;
  bool visible = true;
};

// An event that nobody handles is no error.
template <class... Arguments>
void Fire(const std::function<void(Arguments...)>& event, Arguments... arguments) {
  if (event) event(arguments...);
}

}  // namespace wrenbit
