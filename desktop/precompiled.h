#pragma once

// The headers of the toolkit that many files of the windows and of their tests include, read once a
// build. All of <QtWidgets> would take twice as long to make and a fifth longer to use. No file
// relies on it: each includes what it uses, and nothing of our own stands here, since a change of
// this header builds everything anew.
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMouseEvent>
#include <QObject>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPointF>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QRectF>
#include <QRegularExpression>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QString>
#include <QStringList>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <QVariant>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>
#include <string>
#include <vector>
