#include "study/sample/sample_study.h"

#include <utility>

#include "study/sample/sample_counts.h"
#include "study/sample/sample_region.h"

namespace study {

Study makeSampleStudy(std::uint64_t seed) {
  SampleRegion region = makeRegion(seed);
  Study study;
  study.counts = makeCounts(region, seed);
  study.provinces = std::move(region.provinces);
  study.zones = std::move(region.zones);
  study.zoneCoverage = std::move(region.coverage);
  return study;
}

}  // namespace study
