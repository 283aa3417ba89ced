#pragma once

#include "hosts/windows/win32/windows_h.h"
#include "text/failure.h"

namespace windows {

// What a failed OLE call is to the program. A few codes are known by a number of their own (429, 438, 462 ...); every
// other one keeps its value. The description is `said` where the other side said something, else ours, else the
// system's.
[[nodiscard]] Failure failureOf(HRESULT result, const std::string& said = {});

// Whether a failure with this number says that the other side is there no more.
[[nodiscard]] bool saysItIsGone(int number);

// What the other side said in its answer DISP_E_EXCEPTION; frees what the answer holds.
[[nodiscard]] std::string takeDescription(EXCEPINFO& exception);

}  // namespace windows
