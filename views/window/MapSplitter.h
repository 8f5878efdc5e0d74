#pragma once

#include <QSplitter>

class QBoxLayout;
class QButtonGroup;

namespace VELIX {

/// The pages with the map beside or below them, and the buttons that say where it is.
class MapSplitter : public QSplitter
{
    Q_OBJECT

public:
    /// buttonRow: gets the buttons; the widget that it lays out owns them
    MapSplitter(QWidget* pages, QWidget* map, QBoxLayout& buttonRow, QWidget* parent = nullptr);

    /// Moves the map.
    /// id: 0 hides it, 1 puts it beside the pages, 2 below them; any other changes nothing
    void arrange(int id);

signals:
    /// The user chose an arrangement by its button.
    void signalArrangement(int id);

private:
    void addButtons(QBoxLayout& row);
    void followHandle();

    QButtonGroup* mButtons;
};

} // namespace VELIX
