#include "mesh/mesh_store.h"

#include "mesh/face_tokens.h"
#include "text/number_text.h"

namespace norvik::obj {

namespace {

std::string fresh(front::Session& session, std::string_view name) {
  std::string path = session.opening.inProgramFolder(name);
  text::ignoringErrors([&] { session.disk.remove(path); });
  return path;
}

}  // namespace

MeshStore::MeshStore(front::Session& session, MeshPlace place)
    : MeshStore(session, place == MeshPlace::added
                             ? Files{kAddedFaceFile, kAddedTextureFile, kAddedVertexFile}
                             : Files{kFaceFile, kTextureFile, kVertexFile}) {}

MeshStore::MeshStore(front::Session& session, const Files& files)
    : faces_(session.disk, fresh(session, files.faces), kFaceRecordLength),
      texturePoints_(session.disk, fresh(session, files.texturePoints), kTextureRecordLength),
      vertices_(session.disk, fresh(session, files.vertices), kVertexRecordLength) {}

void MeshStore::addTexturePoint(float u, float v) {
  record_.assign(text::numberText(u)).append("*").append(text::numberText(v));
  texturePoints_.put(++texturePointCount_, record_);
}

void MeshStore::close() {
  faces_.close();
  texturePoints_.close();
  vertices_.close();
}

}  // namespace norvik::obj
