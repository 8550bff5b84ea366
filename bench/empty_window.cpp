// The least that a program of this kind can be: an empty window of the same size in the same style.

#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.setMinimumSize(800, 500);
    window.show();
    return QApplication::exec();
}
