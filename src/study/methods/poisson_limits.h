#pragma once

namespace study {

// The 95% confidence limits of a Poisson mean, given one count.
struct PoissonLimits {
  double lower = 0;
  double upper = 0;
};

// Byar's approximation of the exact limits, within 0.2% of them from 10 deaths on. For no deaths the lower limit is 0.
// With z = 1.959964 and D deaths:
//   lower = D (1 - 1/(9 D) - z/(3 sqrt(D)))^3
//   upper = (D + 1) (1 - 1/(9 (D + 1)) + z/(3 sqrt(D + 1)))^3
// Formula: N. Breslow, N. Day, "Statistical Methods in Cancer Research", vol. II, IARC Scientific Publications 82, Lyon
// 1987, p. 69. `deaths` is not negative.
[[nodiscard]] PoissonLimits byarLimits(long deaths);

}  // namespace study
