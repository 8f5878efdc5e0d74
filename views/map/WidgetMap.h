#pragma once

#include "card/FlightPathPoint.h"
#include "core/MapSettings.h"
#include "platform/tessel/opengl/GlHandler.h"
#include "platform/tessel/opengl/Texture.h"
#include "views/map/MapOverlay.h"
#include "views/map/MapPathLines.h"
#include "views/map/model/MapColoring.h"
#include "views/map/model/MapContext.h"
#include "views/map/model/MapFollower.h"
#include "views/map/model/MapPath.h"
#include "views/map/model/MapTileNotice.h"

#include <QOpenGLWidget>
#include <QTimer>

#include <memory>
#include <optional>
#include <string>
#include <vector>

class QNativeGestureEvent;
class QTouchEvent;

namespace OpenStreet {
class OpenStreetMap;
}

namespace VELIX {

class Property;
class RecordData;

/// The map with the path of a record and the aircraft. Moved by mouse, wheel, keys and gestures.
///
/// Window coordinates are pixels of the frame buffer from the upper left corner, y downwards.
class WidgetMap : public QOpenGLWidget
{
    Q_OBJECT

public:
    /// The context must outlive the widget.
    WidgetMap(QWidget* parent, MapContext& context);
    /// The same with own settings and another folder for tiles and terrain (empty: none is kept).
    WidgetMap(QWidget* parent, MapContext& context, Property& settings,
              const std::string& dataPath);
    ~WidgetMap() override;

    /// A record whose path is to be fitted into the window, null for none. Its path and colours are
    /// to be given before.
    void setRecordData(RecordData* record);
    /// The positions of the record, which must stay until the next call; null for none.
    void setFlightPath(const std::vector<FlightPathPoint>* path);
    /// Colours the path anew where it is.
    void setColoring(MapColoring coloring);
    /// The aircraft at the cursor; the empty point hides it.
    void setAcPosition(const FlightPathPoint& position);
    void setImperial(bool imperial);
    /// The lower end of what lies over the map at its upper edge, in logical pixels.
    void setToolsBottom(int pixels);

    /// Makes the lines of the path and fits the view to it, with the context current.
    void redrawFlightPath();
    /// Has the path fitted into the window with the next picture.
    void fitFlightPath();
    /// Sets the range (m) so that the place under the mouse stays there.
    void zoomCentered(double range);

    /// Great-circle distance in metres between two points in degrees.
    static double calcDistance(double lat1, double lon1, double lat2, double lon2);
    /// Pixels as metres.
    [[nodiscard]] double screenToCartesianSize(double pixels) const;
    void latLong2Window(double latitude, double longitude, double* x, double* y) const;

    /// Draw into the whole frame buffer.
    void setViewPort();
    /// The frame buffer's pixels become the units of what is drawn.
    void setViewPortOrtho();

    /// Pictures painted so far.
    [[nodiscard]] unsigned int paintCount() const { return mPaintCount; }
    /// Tiles that are still to come.
    [[nodiscard]] int loadingTiles() const;
    [[nodiscard]] const FlightPathPoint& acPosition() const { return mAircraft; }

signals:
    /// The user left or chose a mode by hand: the context has it.
    void signalUpdateMode();

public slots:
    /// Repaints if something changed, while the map moves, and once a second.
    void slotTimeout();
    void slotTimeoutResize();

protected:
    void initializeGL() override;
    void resizeGL(int width, int height) override;
    void paintGL() override;

    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    struct Keys
    {
        bool zoomIn = false;
        bool zoomOut = false;
        bool north = false;
        bool south = false;
        bool west = false;
        bool east = false;
        bool shift = false;
        bool control = false;

        bool* flag(int key); ///< of a Qt::Key; null for keys that the map has no use for
    };

    void setUpMap();
    void adoptRatio();
    void takeSettings();
    void updateWindow();
    void releaseGl();

    void makeLines();
    void fitView();
    [[nodiscard]] bool showsFit() const;
    void applyKeys();
    void followAircraft();
    void drawMap();
    void drawPath();
    void drawAircraft();
    void drawOverlay();
    [[nodiscard]] MapOverlay::Content overlayContent();
    void addReadout(MapOverlay::Content& content) const;
    [[nodiscard]] double mapMetresPerPixel() const;
    [[nodiscard]] QSize pixels() const;

    [[nodiscard]] QPointF pixelOf(const QPointF& logical) const;
    void setMouse(const QPointF& logical);
    void grabPlace();
    void keepUnder(double latitude, double longitude, const QPointF& place);
    void zoomAbout(const QPointF& logical, double range);
    void leaveCentring();
    void panByWheel(const QWheelEvent& event);
    bool gesture(const QNativeGestureEvent& event);
    bool touch(const QTouchEvent& event);

    MapContext* mContext;
    Property& mSettings;
    std::string mDataPath;
    std::unique_ptr<OpenStreet::OpenStreetMap> mMap;
    MapSettings mTakenSettings; ///< those that the map was told
    bool mMapSetUp = false;
    MapTileNotice mNotice;
    bool mRetryTiles = false; ///< the map is shown anew: what failed may be there now

    Tessel::OpenGL::GlHandler mGl;
    MapPathLines mLines;
    Tessel::OpenGL::Texture mSymbol;
    MapOverlay mOverlay;

    RecordData* mRecord = nullptr;
    const std::vector<FlightPathPoint>* mFlightPath = nullptr;
    MapPath mPath; ///< mFlightPath on the map
    MapColoring mColoring;
    bool mRedrawPath = false; ///< lines and view are to be made for another record
    bool mStaleLines = false; ///< only the lines
    bool mFitted = false;     ///< the path was once fitted into the window
    MapContext mFit;          ///< the view that did it last
    bool mRefit = false;      ///< it is to be fitted with the next picture
    FlightPathPoint mAircraft;
    MapFollower mFollower;
    bool mImperial = false;
    int mToolsBottom = 0; ///< logical pixels

    Keys mKeys;                    ///< held
    Keys mTapped;                  ///< pressed since the last picture: a short press counts, too
    std::optional<QPointF> mMouse; ///< while it is over the map
    double mMouseLatitude = 0.0;
    double mMouseLongitude = 0.0;
    std::optional<QPointF> mPress; ///< where the left button went down, logical pixels
    double mGrabLatitude = 0.0;    ///< the place that a drag keeps under the mouse
    double mGrabLongitude = 0.0;
    double mTouchSpread = 0.0; ///< between two fingers, logical pixels

    QTimer mTimer;
    QTimer mResizeTimer;
    bool mResized = false;
    bool mDirty = true;
    bool mLoading = false;     ///< tiles have come since the last picture or are to come
    double mLastRepaint = 0.0; ///< s
    double mRatio = 0.0;       ///< pixels of the frame buffer per logical pixel; 0: not known yet
    unsigned int mPaintCount = 0;
};

} // namespace VELIX
