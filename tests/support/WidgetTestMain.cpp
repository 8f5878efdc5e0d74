#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QSurfaceFormat>

// Tests of widgets share one application object, made as start-up makes it.
int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    QSurfaceFormat format;
    format.setDepthBufferSize(24);
    format.setStencilBufferSize(8);
    QSurfaceFormat::setDefaultFormat(format);
    QApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QLocale::setDefault(QLocale::c());
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
