#pragma once

#include <functional>

namespace motor {

// Has `takePart` run here and at the same time on the other cores that are free at once, and returns when all have
// returned. Called from a part, it runs there alone where no core is free. The first failure of a part is passed on
// after the last one has returned.
void onAllCores(const std::function<void()>& takePart);

}  // namespace motor
