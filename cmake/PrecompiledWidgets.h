// The same for rooms with windows.
#include "cmake/PrecompiledCore.h"

#include <QAction>
#include <QApplication>
#include <QColor>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>
