#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QNetworkProxyFactory>
#include <QSurfaceFormat>

namespace {

/// Lets requests reach only this machine: no test may depend on, or burden, a server elsewhere.
class LoopbackOnly : public QNetworkProxyFactory
{
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override
    {
        constexpr quint16 kUnusedPort = 9;
        const QString host = query.peerHostName();
        if (host == QLatin1String("127.0.0.1") || host == QLatin1String("localhost")) {
            return {QNetworkProxy(QNetworkProxy::NoProxy)};
        }
        return {QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), kUnusedPort)};
    }
};

} // namespace

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
    QNetworkProxyFactory::setApplicationProxyFactory(new LoopbackOnly); // which takes it over
    return RUN_ALL_TESTS();
}
