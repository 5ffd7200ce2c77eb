#include "desktop/window/headings.h"
#include "desktop/window/list_filter.h"
#include "desktop/window/panes.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

QWidget* makeChannels(Maker& maker, front::Opening& opening, QWidget& parent) {
  auto* side = new QWidget(&parent);
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  auto& channels = maker.list(opening.ListChannels, *side);
  channels.setAccessibleName(QStringLiteral("Channels"));
  column->addWidget(new ListFilter(opening.ListChannels, channels, *side));
  column->addWidget(&channels, 1);
  maker.showWhileAny(*side, {&opening.ListChannels});
  return side;
}

/// The lists that are worked on one beside the other when channels are put in a new order.
QWidget* makeChannelLists(Maker& maker, front::Opening& opening, QWidget& parent) {
  auto* lists = new QSplitter(Qt::Horizontal, &parent);
  lists->setObjectName(QStringLiteral("ChannelLists"));
  lists->setChildrenCollapsible(false);
  lists->addWidget(makeChannels(maker, opening, *lists));
  struct Named {
    front::ListBox* list;
    const char* name;
  };
  for (const Named& named : {Named{&opening.ListChannelsReorderReordered, "Reordered channels"},
                             Named{&opening.ListEMCs, "Remote controls"}}) {
    auto& view = maker.list(*named.list, *lists);
    view.setAccessibleName(QString::fromLatin1(named.name));
    lists->addWidget(&view);
  }
  return lists;
}

}  // namespace

QWidget* makeSourcePane(Maker& maker, front::Opening& opening, QWidget& parent) {
  constexpr int kIcon = 20;
  auto* pane = new QWidget(&parent);
  pane->setObjectName(QStringLiteral("SourcePane"));
  auto* outside = new QVBoxLayout(pane);
  outside->setContentsMargins(0, kPaneMargin, kPaneMargin, kPaneMargin);
  auto* frame = new QFrame(pane);
  frame->setFrameStyle(QFrame::StyledPanel);
  outside->addWidget(frame);
  auto* column = new QVBoxLayout(frame);
  column->setContentsMargins(kPaneMargin, kPaneMargin, kPaneMargin, kPaneMargin);
  maker.shape(opening.ShapeChannels, *frame);

  column->addWidget(makePaneTitle("Source", *frame));
  auto* head = new QHBoxLayout;
  auto& name = maker.pathLabel(opening.LabelChannelFileName, *frame);
  makeFileHeading(name, QStringLiteral("Source file"));
  head->addWidget(&name, 1);
  head->addWidget(&maker.label(opening.LabelOpenSourceTitle, *frame));
  auto& open = maker.picture(opening.LabelOpenSource, *frame, kIcon);
  open.setToolButtonStyle(Qt::ToolButtonIconOnly);
  open.setAutoRaise(false);
  head->addWidget(&open);
  column->addLayout(head);
  column->addWidget(makeChannelLists(maker, opening, *frame), 1);

  maker.showWhileAny(
      *pane, {&opening.LabelChannelFileName, &opening.ListChannels, &opening.LabelOpenSource,
              &opening.ListChannelsReorderReordered, &opening.ListEMCs});
  return pane;
}

}  // namespace norvik::desktop
