#pragma once

#include <stdexcept>
#include <string>

// The one way in which a port or a control fails: a number that handlers tell apart and a Spanish description that
// they may show. what() is the description.
class Failure : public std::runtime_error {
 public:
  Failure(int number, const std::string& description) : std::runtime_error(description), number_(number) {}

  [[nodiscard]] int number() const { return number_; }
  [[nodiscard]] std::string description() const { return what(); }

 private:
  int number_;
};

// The failure numbers that the program knows, with their descriptions.
namespace failures {

inline constexpr int kOverflow = 6;
inline constexpr int kSubscript = 9;
inline constexpr int kTypeMismatch = 13;
inline constexpr int kFileNotFound = 53;
inline constexpr int kPathAccess = 75;
inline constexpr int kNoObject = 91;
inline constexpr int kInvalidPropertyValue = 380;
inline constexpr int kReadOnlyText = 383;
inline constexpr int kCannotCreateObject = 429;
inline constexpr int kNoSuchMember = 438;
// The automation error with which the map engine rejects a statement or an expression (&H80020009).
inline constexpr int kEngineRejected = -2147352567;

[[nodiscard]] Failure overflow();                               // 6
[[nodiscard]] Failure subscript();                              // 9
[[nodiscard]] Failure typeMismatch();                           // 13
[[nodiscard]] Failure fileNotFound();                           // 53
[[nodiscard]] Failure pathAccess();                             // 75
[[nodiscard]] Failure noObject();                               // 91
[[nodiscard]] Failure invalidPropertyValue();                   // 380
[[nodiscard]] Failure readOnlyText();                           // 383
[[nodiscard]] Failure cannotCreateObject();                     // 429
[[nodiscard]] Failure noSuchMember(const std::string& member);  // 438
[[nodiscard]] Failure engineRejected(const std::string& why);   // -2147352567

}  // namespace failures
