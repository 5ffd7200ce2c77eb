#include "channels/channel_views.h"

#include "channels/channel_listing.h"
#include "channels/part_view.h"
#include "text/columns.h"

namespace norvik::channels {

namespace {

/// The channels in ListChannels, and the morphs in ListChannelsReorder. The details of a link are
/// read by fields.
class AllChannels : public ChannelListing {
 public:
  AllChannels(front::Opening& opening, text::LineReader& in, bool hair)
      : ChannelListing(opening.ListChannels, in), opening_(opening), hair_(hair) {}

 private:
  bool beginsAt(std::string_view line) const override {
    return hair_ && text::begins(line, "prop");
  }

  void actorEntered() override { actorLine_ = text::numberText(count().asSingle(-1)); }

  std::string_view readName() override {
    nextLine();
    return nextLine();
  }

  void morphMet(std::string_view internalName) override {
    item_.assign(actor()).append("*").append(link().slaved).append("^");
    item_.append(actorLine_).append("@").append(internalName);
    opening_.ListChannelsReorder.add(item_);
  }

  std::string_view readLink() override {
    link().figure = nextField();
    link().group = nextField();
    link().master = nextField();
    return nextField();
  }

  front::Opening& opening_;
  bool hair_;  ///< the first prop begins the channels as well
  std::string actorLine_ = text::numberText(0);
  std::string item_;
};

}  // namespace

void ViewChannels(front::Session& session, const std::string& path) {
  front::Opening& opening = session.opening;
  opening.ListChannels.setFore(front::kListNormal);
  opening.ListChannelsReorder.clear();
  const bool sourceOpen = opening.LabelFileName.caption() != opening.LabelChannelFileName.caption();
  const front::Label& file =
      sourceOpen ? opening.LabelChannelFileNameForEditor : opening.LabelFileNameForEditor;
  text::LineReader in(session.disk, file.caption());
  AllChannels(opening, in, text::extension(path) == "hr2").run();
  tellOfNoChannels(opening.ListChannels);
}

void wireChannelViews(front::Session& session) {
  session.routines.ViewChannels = [&session](const std::string& path) {
    ViewChannels(session, path);
  };
  wirePartView(session);
}

}  // namespace norvik::channels
