#include "builders/transfer/graft_part.h"

#include "builders/transfer/graft.h"

namespace norvik::builders {

void BodyPartTransfer(front::Session& session) {
  const front::Opening& opening = session.opening;
  std::string folder = opening.FileChooser.path();
  if (!folder.ends_with('\\')) folder += '\\';
  Graft graft(session, folder + opening.FileLabel.caption());
  graft.askForGeometry();
  graft.openFiles();
  graft.askForName();
  graft.writeStorage();
  if (!graft.passActors()) return;
  graft.writeChannels();
  graft.writeChild();
  graft.askForChain();
  graft.writeWeights();
  graft.writeWeld();
  graft.finish();
}

void wireGraftPart(front::Session& session) {
  session.callable["BodyPartTransfer"] = [&session] { BodyPartTransfer(session); };
  front::Opening& opening = session.opening;
  opening.NameBox.key.add([&opening](const std::string& key) {
    if (key == "Enter") opening.NameLabel.setCaption(opening.NameBox.text());
  });
}

}  // namespace norvik::builders
