// barewindow WIDTH HEIGHT: an empty Qt widgets window, the least that any Qt launcher costs.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    QWidget window;
    window.resize(arguments.value(1).toInt(), arguments.value(2).toInt());
    window.show();
    return QApplication::exec();
}
