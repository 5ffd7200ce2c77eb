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

MeshStore::MeshStore(front::Session& session)
    : faces_(session.disk, fresh(session, kFaceFile), kFaceRecordLength),
      texturePoints_(session.disk, fresh(session, kTextureFile), kTextureRecordLength),
      vertices_(session.disk, fresh(session, kVertexFile), kVertexRecordLength) {}

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
