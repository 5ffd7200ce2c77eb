#pragma once

#include "figure.h"
#include "text_file.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::examples {

// The head of a channel: what every kind has, in the order in which Poser writes it.
struct Channel {
  std::string_view kind;
  std::string name;
  std::string dial;
  int value = 0;
  bool isHidden = false;
  bool forcesLimits = false;
  int low = -100000;
  int high = 100000;
  std::string_view tracking = "0.01";
};

// Writes the channel up to its ERC blocks; what the kind adds follows, and then closeChannel.
void openChannel(TextFile& file, const Channel& channel, const std::vector<Master>& masters = {});
void closeChannel(TextFile& file);

void writeMorphChannel(TextFile& file, const std::string& name, const std::string& dial,
                       const std::vector<Master>& masters, const std::vector<Delta>& deltas,
                       std::size_t pointCount);

// The dial on BODY of a full-body morph.
Channel fullBodyDial(const Morph& morph);

// The dials that every actor of a kind ends with, in order: size, turn and place.
std::vector<Channel> bodyDials();
std::vector<Channel> partDials(const BodyPart& part);
std::vector<Channel> propDials();

// The letter of an axis as channel kinds and names have it.
char capital(Axis axis);
char small(Axis axis);
// The two axes about which a bone along that axis bends.
std::vector<Axis> bendAxes(Axis along);

}  // namespace norvik::examples
