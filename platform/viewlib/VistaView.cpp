#include "platform/viewlib/VistaView.h"

#include "platform/tessel/opengl/Gl.h"
#include "platform/viewlib/ViewCanvas.h"
#include "platform/viewlib/ViewPlacement.h"
#include "platform/viewlib/ViewReader.h"
#include "platform/viewlib/ViewVariables.h"

#include <QFile>
#include <QOpenGLContext>
#include <QOpenGLPaintDevice>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <map>

namespace Vista2D {

using Layout = ViewReader::Layout;

struct VistaView::Parts
{
    ViewVariables variables;
    std::map<Layout, ViewModel> layouts = {{Layout::Wide, {}}}; ///< those that there are
    Layout layout = Layout::Wide;
    std::vector<ViewError> errors;
    ViewCanvas canvas;
    bool isRunning = false;
    bool hasBackground = true;
    bool isChanged = true; ///< by something else than a variable

    [[nodiscard]] const ViewModel& model() const { return layouts.at(layout); }
    void lay(Layout wanted)
    {
        layout = layouts.count(wanted) > 0 ? wanted : Layout::Wide;
        canvas.forget();
        variables.set(variables.slot("TALL"), layout == Layout::Tall ? 1.0 : 0.0);
        variables.set(variables.slot("LOW"), layout == Layout::Low ? 1.0 : 0.0);
    }
};

namespace {

/// Keeps the state of a context with fixed functions, which painting changes.
class KeptState
{
public:
    KeptState()
    {
        glPushAttrib(GL_ALL_ATTRIB_BITS);
        glPushClientAttrib(GL_CLIENT_ALL_ATTRIB_BITS);
        glGetIntegerv(GL_CURRENT_PROGRAM, &mProgram);
        glGetIntegerv(GL_ARRAY_BUFFER_BINDING, &mArrayBuffer);
    }
    ~KeptState()
    {
        glUseProgram(static_cast<GLuint>(mProgram));
        glBindBuffer(GL_ARRAY_BUFFER, static_cast<GLuint>(mArrayBuffer));
        glPopClientAttrib();
        glPopAttrib();
    }
    KeptState(const KeptState&) = delete;
    KeptState& operator=(const KeptState&) = delete;

private:
    GLint mProgram = 0;
    GLint mArrayBuffer = 0;
};

ViewPlacement currentPlacement()
{
    double modelView[16];
    double projection[16];
    int viewport[4];
    glGetDoublev(GL_MODELVIEW_MATRIX, modelView);
    glGetDoublev(GL_PROJECTION_MATRIX, projection);
    glGetIntegerv(GL_VIEWPORT, viewport);
    return ViewPlacement::of(modelView, projection, viewport);
}

} // namespace

VistaView::VistaView() : mParts(std::make_unique<Parts>()) {}
VistaView::~VistaView() = default;

bool VistaView::load(const std::string& path)
{
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    // One byte more than is allowed, so that the reader sees that there are too many.
    loadText(file.read(ViewReader::kLargestFile + 1).toStdString());
    return true;
}

void VistaView::loadText(const std::string& text)
{
    const QByteArray bytes = QByteArray::fromStdString(text);
    ViewReader reader(mParts->variables);
    reader.read(bytes);
    mParts->errors = reader.errors();
    mParts->layouts.clear();
    mParts->layouts[Layout::Wide] = std::move(reader.model());
    for (const Layout further : {Layout::Tall, Layout::Low}) {
        if (reader.hasLayout(further)) {
            ViewReader again(mParts->variables, further);
            again.read(bytes);
            mParts->layouts[further] = std::move(again.model());
        }
    }
    mParts->lay(mParts->layout);
}

const std::vector<ViewError>& VistaView::errors() const
{
    return mParts->errors;
}

bool VistaView::knows(const std::string& name) const
{
    const int slot = mParts->variables.find(name);
    return slot >= 0 && mParts->model().slotsUsed.count(slot) > 0;
}

void VistaView::startView(int running)
{
    mParts->isRunning = running != 0;
    mParts->isChanged = true;
}

void VistaView::setBackgroundMode(int mode)
{
    mParts->hasBackground = mode == 0;
    mParts->isChanged = true;
}

unsigned int VistaView::background() const
{
    return mParts->model().colors.background.rgba();
}

void VistaView::setVar(const char* name, double value)
{
    mParts->variables.set(mParts->variables.slot(name), value);
}

void VistaView::setVar(const char* name, long value)
{
    setVar(name, static_cast<double>(value));
}

void VistaView::setRoom(double width, double height)
{
    const auto scale = [&](const ViewModel& model) {
        return model.size.isEmpty()
                   ? 0.0
                   : std::min(width / model.size.width(), height / model.size.height());
    };
    const auto best = std::max_element(
        mParts->layouts.begin(), mParts->layouts.end(),
        [&](const auto& a, const auto& b) { return scale(a.second) < scale(b.second); });
    if (best->first != mParts->layout) {
        mParts->lay(best->first);
    }
}

double VistaView::width() const
{
    return std::max(0.0, mParts->model().size.width());
}

double VistaView::height() const
{
    return std::max(0.0, mParts->model().size.height());
}

bool VistaView::changed() const
{
    return mParts->isChanged || mParts->canvas.isOutdated(mParts->variables);
}

void VistaView::draw(int shown)
{
    Parts& parts = *mParts;
    if (shown == 0 || !parts.isRunning || parts.model().size.isEmpty() ||
        QOpenGLContext::currentContext() == nullptr) {
        return;
    }
    const ViewPlacement placement = currentPlacement();
    const double scale = ViewCanvas::usableScale(parts.model(), placement.scale());
    if (!std::isfinite(scale) || !(scale > 0.0) || placement.surface.isEmpty()) {
        return;
    }
    const KeptState state;
    const QImage& image =
        parts.canvas.frame(parts.model(), parts.variables, scale, parts.hasBackground);
    QOpenGLPaintDevice device(placement.surface);
    QPainter painter(&device);
    if (placement.isUpright() && scale == placement.scale()) {
        painter.drawImage(QPoint(qRound(placement.toPixels.dx() / placement.toPixels.m33()),
                                 qRound(placement.toPixels.dy() / placement.toPixels.m33())),
                          image);
    } else {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.setTransform(placement.toPixels);
        painter.drawImage(QRectF({0.0, 0.0}, parts.model().size), image,
                          QRectF({0.0, 0.0}, parts.model().size * scale));
    }
    parts.isChanged = false;
}

} // namespace Vista2D
