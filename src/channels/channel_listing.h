#pragma once
// The forward read over a figure that lists the channels of all its actors.

#include "channels/erc_details.h"
#include "text/line_reader.h"
#include "text/number_text.h"

#include <string>
#include <string_view>

namespace norvik::channels {

/// Adds a morph as two items, its actor and its dial behind a tab, and a link as its seven. What
/// the lists differ in is the derived class's: how a name and a link are read, and what else is
/// kept of them.
///
/// Lines are looked at where they were read, and what is kept or listed is built in texts that are
/// used again: a figure has ten thousand morphs, and the list must be there at once.
class ChannelListing {
 public:
  ChannelListing(front::ListBox& list, text::LineReader& in) : list_(list), in_(in) {}
  ChannelListing(const ChannelListing&) = delete;
  ChannelListing& operator=(const ChannelListing&) = delete;
  virtual ~ChannelListing() = default;

  /// Lists to the end of the file.
  void run();

 protected:
  // What these return is good until the next of them.

  std::string_view nextLine();
  std::string_view nextLine(const text::LineFilter& stops);
  std::string_view nextField();

  front::ListBox& list() { return list_; }
  text::LineReader& in() { return in_; }
  const std::string& actor() const { return actor_; }
  /// The lines and fields read so far.
  text::LineCount& count() { return count_; }
  /// The link that is being read; `slaved` is the last morph's dial.
  ErcLink& link() { return link_; }

 private:
  /// Whether the channels begin at a line in front of the first actor.
  virtual bool beginsAt(std::string_view) const { return false; }
  virtual void actorEntered() {}
  /// Reads the two lines behind a morph's entry line; the second, with the name.
  virtual std::string_view readName() = 0;
  /// A morph was met; its dial is link().slaved.
  virtual void morphMet(std::string_view internalName) = 0;
  /// Reads the four lines behind a link's first one into link(); the last of them.
  virtual std::string_view readLink() = 0;
  virtual void linkListed() {}

  void findFirstActor();
  void enterActor(std::string_view line);
  std::string_view listMorph(std::string_view entryLine);
  std::string_view listLink();

  front::ListBox& list_;
  text::LineReader& in_;
  text::LineCount count_;
  std::string actor_;
  ErcLink link_;
  std::string internalName_;
  std::string item_;
};

/// Has a list that got no channels say so, in red.
void tellOfNoChannels(front::ListBox& list);

}  // namespace norvik::channels
