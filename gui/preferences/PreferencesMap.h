#pragma once

#include <QWidget>

class QCheckBox;
class QDoubleSpinBox;
class QFormLayout;
class QLineEdit;
class QSpinBox;

namespace VELIX {

struct MapSettings;

/// The page of the preferences for map tiles and the shading of the terrain.
class PreferencesMap : public QWidget
{
    Q_OBJECT

public:
    explicit PreferencesMap(QWidget* parent = nullptr);

    void showSettings(const MapSettings& map);
    MapSettings values() const;

signals:
    /// The user changed a value.
    void signalChanged();

private:
    QSpinBox* addCacheLimit(QFormLayout& form);
    QDoubleSpinBox* addNumber(QFormLayout& form, const QString& label, const char* name);
    void enableShading();
    void slotDefaults();

    QLineEdit* mTileServer;
    QSpinBox* mCacheLimit = nullptr;
    QCheckBox* mShading;
    QDoubleSpinBox* mContrast = nullptr;
    QDoubleSpinBox* mBrightness = nullptr;
    QDoubleSpinBox* mFactor = nullptr;
};

} // namespace VELIX
