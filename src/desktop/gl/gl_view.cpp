#include "desktop/gl/gl_view.h"

#include "desktop/gl/gl_support.h"

#include <QOpenGLContext>

#include <utility>

namespace norvik::desktop {

namespace {

// Depth runs from 0 to 1 in the matrices and from -1 to 1 here.
constexpr const char* kVertexProgram = R"(#version 330 core
uniform mat4 world;
uniform mat4 view;
uniform mat4 projection;
layout(location = 0) in vec3 corner;
out vec3 seen;
void main() {
  vec4 at = view * (world * vec4(corner, 1.0));
  seen = at.xyz;
  gl_Position = projection * at;
  gl_Position.z = 2.0 * gl_Position.z - gl_Position.w;
})";

// The meshes have no normals, so a face's own is made of its slope on the screen. All faces are
// drawn, those that look away as well; the more a face looks aside, the darker it is.
constexpr const char* kFragmentProgram = R"(#version 330 core
uniform vec3 diffuse;
uniform bool shaded;
in vec3 seen;
out vec4 colour;
void main() {
  float light = 1.0;
  if (shaded) {
    vec3 normal = normalize(cross(dFdx(seen), dFdy(seen)));
    vec3 lamp = normalize(vec3(-0.35, 0.55, -1.0));
    light = 0.35 + 0.5 * abs(dot(normal, lamp)) + 0.15 * abs(normal.z);
  }
  colour = vec4(diffuse * light, 1.0);
})";

/// Red, and blue on a mesh that is red itself, as it is until it is spun anew.
graphics::Material contrasting(const graphics::Material& mesh) {
  constexpr float kMuch = 0.6F;
  constexpr float kLittle = 0.4F;
  if (mesh.red > kMuch && mesh.green < kLittle && mesh.blue < kLittle) return {0, 0, 1};
  return {1, 0, 0};
}

float part(unsigned value) {
  return static_cast<float>(value) / 255.0F;
}

}  // namespace

GlView::GlView(GlDevice& device, QWidget* parent) : QOpenGLWidget(parent), device_(device) {
  setFormat(glFormat());
  device.setWidget(*this);
}

GlView::~GlView() {
  disconnect(context_);
  release();
}

void GlView::initializeGL() {
  // A widget that has come into another window begins anew.
  held_ = 0;
  capacity_ = 0;
  markTaken_ = false;
  disconnect(context_);
  context_ = connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, [this] { release(); });
  works_ = initializeOpenGLFunctions();
  if (!works_) return;
  program_ = std::make_unique<QOpenGLShaderProgram>();
  works_ = program_->addShaderFromSourceCode(QOpenGLShader::Vertex, kVertexProgram) &&
           program_->addShaderFromSourceCode(QOpenGLShader::Fragment, kFragmentProgram) &&
           program_->link() && mesh_.create() && mark_.create();
  if (!works_) return;
  places_ = {.world = program_->uniformLocation("world"),
             .view = program_->uniformLocation("view"),
             .projection = program_->uniformLocation("projection"),
             .diffuse = program_->uniformLocation("diffuse"),
             .shaded = program_->uniformLocation("shaded")};
  for (Stock* stock : {&mesh_, &mark_}) {
    stock->array.bind();
    stock->buffer.bind();
    glEnableVertexAttribArray(0);
    glVertexAttribPointer(0, 3, GL_FLOAT, GL_FALSE, sizeof(GlDevice::Corner), nullptr);
    stock->array.release();
    stock->buffer.release();
  }
}

void GlView::release() {
  if (!program_) return;
  makeCurrent();
  program_.reset();
  mesh_.destroy();
  mark_.destroy();
  works_ = false;
  doneCurrent();
}

bool GlView::Stock::create() {
  if (!buffer.create() || !array.create()) return false;
  buffer.setUsagePattern(QOpenGLBuffer::StaticDraw);
  return true;
}

void GlView::Stock::destroy() {
  buffer.destroy();
  array.destroy();
}

void GlView::setMark(std::vector<GlDevice::Corner> corners) {
  marked_ = std::move(corners);
  markTaken_ = false;
  update();
}

void GlView::takeMark() {
  if (std::exchange(markTaken_, true) || marked_.empty()) return;
  mark_.buffer.bind();
  mark_.buffer.allocate(marked_.data(),
                        static_cast<int>(marked_.size() * sizeof(GlDevice::Corner)));
  mark_.buffer.release();
}

/// The same places through the same program come out at the same depth, so that the mark is seen
/// just where its faces are.
void GlView::drawMark(const GlFrame& frame) {
  takeMark();
  if (marked_.empty()) return;
  glDepthFunc(GL_LEQUAL);
  mark_.array.bind();
  for (std::size_t i = 0; i < frame.count; ++i) {
    GlFrame::Draw marked = frame.draws[i];
    marked.material = contrasting(marked.material);
    draw(marked, static_cast<int>(marked_.size()));
  }
  mark_.array.release();
  glDepthFunc(GL_LESS);
}

void GlView::takeMesh() {
  if (held_ == device_.meshes()) return;
  const auto& corners = device_.corners();
  const auto bytes = static_cast<int>(corners.size() * sizeof(GlDevice::Corner));
  mesh_.buffer.bind();
  if (bytes > capacity_) {
    mesh_.buffer.allocate(corners.data(), bytes);
    capacity_ = bytes;
    ++counts_.allocations;
  } else if (bytes > 0) {
    mesh_.buffer.write(0, corners.data(), bytes);
  }
  mesh_.buffer.release();
  held_ = device_.meshes();
  ++counts_.uploads;
}

void GlView::draw(const GlFrame::Draw& draw, int corners) {
  // A row of ours is a column there, which turns the point from the left side to the right.
  const auto set = [this](int place, const graphics::Matrix& matrix) {
    glUniformMatrix4fv(place, 1, GL_FALSE, matrix.row[0].data());
  };
  set(places_.world, draw.world);
  set(places_.view, draw.view);
  set(places_.projection, draw.projection);
  glUniform3f(places_.diffuse, draw.material.red, draw.material.green, draw.material.blue);
  const bool triangles = draw.primitive == graphics::Primitive::triangles;
  glUniform1i(places_.shaded, triangles ? 1 : 0);
  if (triangles) {
    glDrawArrays(GL_TRIANGLES, 0, corners / 3 * 3);
  } else {
    glPointSize(static_cast<float>(2 * devicePixelRatioF()));
    glDrawArrays(GL_POINTS, 0, corners);
  }
}

void GlView::paintGL() {
  const GlFrame& frame = device_.shown();
  if (!works_) return;
  ++counts_.frames;
  glClearColor(part(graphics::redOf(frame.ground)), part(graphics::greenOf(frame.ground)),
               part(graphics::blueOf(frame.ground)), 1);
  glEnable(GL_DEPTH_TEST);
  glDisable(GL_CULL_FACE);
  glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
  takeMesh();
  const auto corners = static_cast<int>(device_.corners().size());
  if (corners == 0) return;
  program_->bind();
  mesh_.array.bind();
  for (std::size_t i = 0; i < frame.count; ++i) draw(frame.draws[i], corners);
  mesh_.array.release();
  drawMark(frame);
  program_->release();
}

}  // namespace norvik::desktop
