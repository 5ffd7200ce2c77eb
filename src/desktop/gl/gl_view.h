#pragma once
// The widget of the 3D view.

#include "desktop/gl/gl_device.h"

#include <QOpenGLBuffer>
#include <QOpenGLFunctions_3_3_Core>
#include <QOpenGLShaderProgram>
#include <QOpenGLVertexArrayObject>
#include <QOpenGLWidget>

#include <memory>
#include <vector>

namespace norvik::desktop {

/// Paints the frame that its device shows. The mesh goes into a buffer of the graphics card when it
/// has changed and stays there; a frame hands over three matrices and a colour.
class GlView : public QOpenGLWidget, protected QOpenGLFunctions_3_3_Core {
 public:
  /// What was done so far; for tests.
  struct Counts {
    int frames = 0;
    int uploads = 0;      ///< of a mesh into the buffer
    int allocations = 0;  ///< of memory for the buffer
  };

  GlView(GlDevice& device, QWidget* parent);
  ~GlView() override;

  /// Triangles that stand out from the rest wherever the mesh has them too.
  void setMark(std::vector<GlDevice::Corner> corners);

  const Counts& counts() const { return counts_; }

 protected:
  void initializeGL() override;
  void paintGL() override;

 private:
  void release();
  void takeMesh();
  void takeMark();
  void draw(const GlFrame::Draw& draw, int corners);
  void drawMark(const GlFrame& frame);

  /// The places of the program's values, asked for once.
  struct Places {
    int world = 0;
    int view = 0;
    int projection = 0;
    int diffuse = 0;
    int shaded = 0;
  };

  GlDevice& device_;
  /// Corners in the memory of the graphics card.
  struct Stock {
    QOpenGLVertexArrayObject array;
    QOpenGLBuffer buffer{QOpenGLBuffer::VertexBuffer};

    bool create();
    void destroy();
  };

  QMetaObject::Connection context_;
  bool works_ = false;
  std::unique_ptr<QOpenGLShaderProgram> program_;
  Places places_;
  Stock mesh_;
  Stock mark_;
  std::vector<GlDevice::Corner> marked_;
  bool markTaken_ = true;
  int capacity_ = 0;        ///< of the buffer, in bytes
  std::uint64_t held_ = 0;  ///< the mesh that the buffer holds
  Counts counts_;
};

}  // namespace norvik::desktop
