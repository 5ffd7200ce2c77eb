#include "channels/dials/dial_flag.h"

#include "text/patched_file.h"

namespace norvik::channels {

std::uint64_t flagBehindWhichStands(const text::LineReader& in) {
  constexpr std::uint64_t kBack = 3;
  return in.position() < kBack ? 0 : in.position() - kBack;
}

std::string turnFlag(front::Session& session, std::uint64_t offset, const FlagTexts& texts) {
  text::PatchedFile file(session.disk, session.opening.OpenedPath);
  const char digit = file.at(offset);
  if (digit != '0' && digit != '1') return {};
  const bool wasOn = digit == '1';
  file.put(offset, wasOn ? '0' : '1');
  return std::string{wasOn ? texts.wasOn : texts.wasOff};
}

}  // namespace norvik::channels
