// Reference for the panel's start-up figure: a bare Qt window of the frame's size, with the
// panel's application attributes, shown on the same X server.
#include <QApplication>
#include <QWidget>

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QCoreApplication::setAttribute(Qt::AA_ForceRasterWidgets, true);
    QApplication app(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("bare window"));
    window.setWindowFlags(Qt::FramelessWindowHint);
    window.resize(1000, 600);
    window.show();
    return app.exec();
}
