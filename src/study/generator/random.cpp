#include "study/generator/random.h"

#include <bit>
#include <cmath>

namespace study::generator {

std::uint64_t mix(std::uint64_t value) {
  value += 0x9E3779B97F4A7C15u;
  value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9u;
  value = (value ^ (value >> 27)) * 0x94D049BB133111EBu;
  return value ^ (value >> 31);
}

Random::Random(std::uint64_t seed, std::uint64_t stream) : state_{} {
  std::uint64_t value = mix(seed) ^ mix(~stream);
  for (std::uint64_t& word : state_) {
    word = mix(value);
    value += 0x9E3779B97F4A7C15u;
  }
}

std::uint64_t Random::next() {
  const std::uint64_t result = std::rotl(state_[1] * 5, 7) * 9;
  const std::uint64_t shifted = state_[1] << 17;
  state_[2] ^= state_[0];
  state_[3] ^= state_[1];
  state_[1] ^= state_[2];
  state_[0] ^= state_[3];
  state_[2] ^= shifted;
  state_[3] = std::rotl(state_[3], 45);
  return result;
}

double Random::unit() { return static_cast<double>(next() >> 11) * 0x1.0p-53; }

double Random::between(double low, double high) { return low + (high - low) * unit(); }

std::size_t Random::below(std::size_t count) { return static_cast<std::size_t>(unit() * static_cast<double>(count)); }

double Random::normal() {
  // Twelve uniform numbers: needs no logarithm, whose last digit differs between mathematics libraries.
  double sum = -6;
  for (int i = 0; i < 12; ++i) sum += unit();
  return sum;
}

long Random::poisson(double mean) {
  if (mean > 50) {
    const double count = std::floor(mean + std::sqrt(mean) * normal() + 0.5);
    return count < 0 ? 0 : static_cast<long>(count);
  }
  // D. Knuth's product method.
  const double limit = std::exp(-mean);
  long count = 0;
  for (double product = unit(); product > limit; product *= unit()) ++count;
  return count;
}

}  // namespace study::generator
