#pragma once
// The record files of the mesh in view.

#include "front/session.h"
#include "text/record_file.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace norvik::obj {

inline constexpr std::string_view kFaceFile = "\\FArray.txt";
inline constexpr std::string_view kTextureFile = "\\VTArray.txt";
inline constexpr std::string_view kVertexFile = "\\VArray.txt";
/// The same files of a second mesh.
inline constexpr std::string_view kAddedFaceFile = "\\FArrayAdd.txt";
inline constexpr std::string_view kAddedTextureFile = "\\VTArrayAdd.txt";
inline constexpr std::string_view kAddedVertexFile = "\\VArrayAdd.txt";
inline constexpr std::size_t kVertexRecordLength = 50;
inline constexpr std::size_t kTextureRecordLength = 50;

/// Which mesh a store is of.
enum class MeshPlace { inView, added };

/// Writes the three files of the program folder that the mesh tools go straight into by number:
/// faces with groups and materials between them, texture points, and vertices, each in file order.
/// Without a close() they hold what was added so far.
class MeshStore {
 public:
  /// The files of the last mesh go; one that cannot be deleted is written over.
  explicit MeshStore(front::Session& session, MeshPlace place = MeshPlace::inView);

  /// An `f`, `g` or `use` line; of a longer one than the record 500 characters are kept.
  void addFace(std::string_view line) { faces_.put(++faceCount_, line); }
  /// A `v` line.
  void addVertex(std::string_view line) { vertices_.put(++vertexCount_, line); }
  /// Both numbers as text with their sign columns, "*" between them.
  void addTexturePoint(float u, float v);
  /// A whole `vt` line, as a second mesh has it.
  void addTextureLine(std::string_view line) { texturePoints_.put(++texturePointCount_, line); }

  void close();

 private:
  struct Files {
    std::string_view faces;
    std::string_view texturePoints;
    std::string_view vertices;
  };
  MeshStore(front::Session& session, const Files& files);

  text::RecordFile faces_;
  text::RecordFile texturePoints_;
  text::RecordFile vertices_;
  std::uint64_t faceCount_ = 0;
  std::uint64_t texturePointCount_ = 0;
  std::uint64_t vertexCount_ = 0;
  std::string record_;
};

}  // namespace norvik::obj
