// The peer of the start-up benchmark: the least program that shows a Qt Quick Controls window.
#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int argc, char **argv) {
    QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.loadData(R"(
        import QtQuick
        import QtQuick.Controls.Basic
        ApplicationWindow { width: 390; height: 844; visible: true; Label { text: "empty" } }
    )");
    return QGuiApplication::exec();
}
