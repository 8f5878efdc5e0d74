#pragma once

#include "card/FlightPathPoint.h"
#include "views/map/MapCamera.h"
#include "views/map/MapInput.h"
#include "views/map/model/MapChanges.h"
#include "views/map/model/MapColoring.h"

#include <QOpenGLWidget>
#include <QTimer>

#include <memory>
#include <string>
#include <vector>

namespace VELIX {

class MapScene;
class MapTiles;
class Property;
class RecordData;
struct MapContext;

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

    /// Takes a record whose path is to be fitted into the window, null for none. Its path and
    /// colours are to be given before.
    void setRecordData(RecordData* record);
    /// Takes the positions of the record, which must be there until the next call; null for none.
    void setFlightPath(const std::vector<FlightPathPoint>* path);
    /// Colours the path again where it is.
    void setColoring(MapColoring coloring);
    /// Shows the aircraft at the cursor; the empty point hides it.
    void setAcPosition(const FlightPathPoint& position);
    void setImperial(bool imperial);
    /// Takes the lower end of what is over the map at its upper edge, in logical pixels.
    void setToolsBottom(int pixels);

    /// Makes the lines of the path and fits the view to it, with the context current.
    void redrawFlightPath();
    /// Has the path fitted into the window with the next frame.
    void fitFlightPath();
    /// Sets the range (m) so that the place under the mouse stays there.
    void zoomCentered(double range);

    /// Returns the great-circle distance in metres between two points in degrees.
    static double calcDistance(double lat1, double lon1, double lat2, double lon2);
    /// Returns pixels as metres.
    [[nodiscard]] double screenToCartesianSize(double pixels) const;
    void latLong2Window(double latitude, double longitude, double* x, double* y) const;

    /// Has all that is drawn fill the whole frame buffer.
    void setViewPort();
    /// Makes the frame buffer's pixels the units of what is drawn.
    void setViewPortOrtho();

    /// Returns the number of frames painted so far.
    [[nodiscard]] unsigned int paintCount() const { return mPaintCount; }
    /// Returns the number of tiles that are still to come.
    [[nodiscard]] int loadingTiles() const;
    [[nodiscard]] const FlightPathPoint& acPosition() const;

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
    void adoptWindow();
    void loadForRatio();
    void releaseGl();
    void prepareFrame();
    void makeLines();
    void fitView();

    MapContext* mContext;
    std::unique_ptr<MapTiles> mTiles;
    MapCamera mCamera;
    std::unique_ptr<MapScene> mScene;
    MapChanges mChanges;
    MapInput mInput;
    RecordData* mRecord = nullptr;
    int mToolsBottom = 0; ///< logical pixels
    QTimer mTimer;
    QTimer mResizeTimer;
    bool mResized = false;
    unsigned int mPaintCount = 0;
};

} // namespace VELIX
