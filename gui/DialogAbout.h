#pragma once

#include <QDialog>

namespace VELIX {

/// Name and version of the program and of the library that draws it.
class DialogAbout : public QDialog
{
    Q_OBJECT

public:
    explicit DialogAbout(QWidget* parent = nullptr);
};

} // namespace VELIX
