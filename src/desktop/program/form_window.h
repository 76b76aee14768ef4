#pragma once

#include "desktop/program/child_window.h"

#include <functional>
#include <type_traits>
#include <utility>

namespace veln {

/// A window over a form of the engine: its controls call the form's functions, and what came of it shows.
template <class FormType>
class FormWindow : public ChildWindow {
 public:
  [[nodiscard]] const FormType& Form() const { return form_; }

 protected:
  FormWindow(Program& program, QWidget* parent, const Traits& traits, FormType form)
      : ChildWindow(program, parent, traits), form_(std::move(form))
  {
  }

  /// Shows the form as it stands.
  virtual void Mirror() = 0;

  /// For a control: an action of the form, with these arguments.
  template <class... Arguments>
  std::function<void()> Does(void (*action)(FormType&, Arguments...),
                             std::type_identity_t<Arguments>... arguments)
  {
    return [this, action, arguments...] {
      action(form_, arguments...);
      Mirror();
    };
  }

  /// For a control that has a value: the action of the form that takes it.
  template <class Value>
  std::function<void(Value)> Takes(void (*action)(FormType&, Value))
  {
    return [this, action](Value value) {
      action(form_, value);
      Mirror();
    };
  }

  /// For a control that has a value: where the form keeps it.
  template <class Value>
  auto Keeps(Value FormType::* field)
  {
    return [this, field](const Value& value) {
      form_.*field = value;
      Mirror();
    };
  }

  FormType form_;
};

}  // namespace veln
