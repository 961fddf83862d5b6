// What a user would write himself: an icon in the status bar, and a transfer a second.
#include <QApplication>
#include <QPixmap>
#include <QSystemTrayIcon>
#include <QTimer>

#include <curl/curl.h>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QPixmap pixmap(22, 22);
    pixmap.fill(Qt::red);
    QSystemTrayIcon icon((QIcon(pixmap)));
    icon.show();
    CURL *easy = curl_easy_init();
    if (argc != 2 || !easy)
        return 1;
    const auto drop = +[](char *, size_t size, size_t count, void *) { return size * count; };
    curl_easy_setopt(easy, CURLOPT_URL, argv[1]);
    curl_easy_setopt(easy, CURLOPT_PROXY, "");
    curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, drop);
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [easy] { curl_easy_perform(easy); });
    timer.start(1000);
    return QApplication::exec();
}
