#pragma once

#include <QMenu>

class QActionGroup;

namespace VELIX {

class MapSelection;
class Profile;
struct ProfileParameter;

/// The map's context menu: which values are shown over the map, and what colours the path. Both
/// refer to the selected parameters of the profile, which must not change while the menu is open.
class MapMenu : public QMenu
{
    Q_OBJECT

public:
    MapMenu(const Profile& profile, MapSelection& selection, QWidget* parent);

signals:
    void signalValuesChanged();
    void signalColorChanged();

private:
    void addValues();
    void showValue(const QString& fullName, bool shown);
    void disableWhatHasNoRoom();
    void addColors();
    void addColor(QMenu& menu, QActionGroup& group, const QString& text, const QString& fullName);

    const Profile& mProfile;
    MapSelection& mSelection;
    QMenu* mValues = nullptr;
};

} // namespace VELIX
