// The least that a program with an icon in the status bar can be.
#include <QApplication>
#include <QPixmap>
#include <QSystemTrayIcon>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QPixmap pixmap(22, 22);
    pixmap.fill(Qt::red);
    QSystemTrayIcon icon((QIcon(pixmap)));
    icon.show();
    return QApplication::exec();
}
