#include "forms/timer.h"

#include "forms/form.h"

namespace forms {

void Timer::elapse() {
  if (enabled() && form().isLoaded()) Tick.raise();
}

}  // namespace forms
