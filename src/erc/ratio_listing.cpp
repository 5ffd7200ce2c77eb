#include "erc/ratio_listing.h"

#include "channels/channel_listing.h"
#include "text/columns.h"

namespace norvik::erc {

namespace {

/// The channels in ListEMCs. The details of a link are cut by columns, as its lines stand: the
/// group and figure behind four tabs, the master channel behind three. Of a link whose lines all
/// stand behind three the first letters of figure and group are not shown.
class RatioListing : public channels::ChannelListing {
 public:
  RatioListing(FormListEMCs& form, text::LineReader& in)
      : ChannelListing(form.ListEMCs, in), form_(form) {}

 private:
  std::string_view readName() override {
    // The brace is the one field among the lines: in front of a comma it does not end its line.
    static_cast<void>(in().field());
    if (in().atLineStart()) ++count();
    return nextLine();
  }

  void morphMet(std::string_view) override {}

  std::string_view readLink() override {
    constexpr std::size_t kBehindThreeTabs = 4;
    constexpr std::size_t kBehindFourTabs = 5;
    link().figure = text::from(nextLine(), kBehindFourTabs);
    link().group = text::from(nextLine(), kBehindFourTabs);
    link().master = text::from(nextLine(), kBehindThreeTabs);
    return nextLine();
  }

  void linkListed() override {
    auto& lines = form_.RatioLines;
    lines.resize(static_cast<std::size_t>(list().count()) + 1);
    lines.back() = "Delta Control Ratio: " + link().ratio + "#" + std::to_string(count().lines());
  }

  FormListEMCs& form_;
};

void listChannels(front::Session& session, FormListEMCs& form) {
  form.LabelTitle.setCaption(session.opening.LabelFileNameForEditor.caption());
  form.Text1.show();
  form.Label1.show();
  text::LineReader in(session.disk, form.LabelTitle.caption());
  text::ignoringErrors([&] { RatioListing(form, in).run(); });
  channels::tellOfNoChannels(form.ListEMCs);
}

}  // namespace

void wireRatioListing(front::Session& session, FormListEMCs& form) {
  front::Opening& opening = session.opening;
  opening.PictureChangeRatio.released.add([&session, &opening, &form](front::Mouse mouse) {
    if (mouse.button != front::MouseButton::left) return;
    opening.OptionChannelRename.hide();
    opening.OptionBodyPartRename.hide();
    session.load(form);
  });
  form.loading.add([&form] { form.restoreStart(); });
  form.shown.add([&session, &form] { listChannels(session, form); });
}

}  // namespace norvik::erc
