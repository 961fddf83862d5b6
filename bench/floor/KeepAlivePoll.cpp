// The least that a poll can cost: one transfer a second with libcurl, over a connection that is kept.
#include <curl/curl.h>

#include <ctime>

namespace {

size_t drop(char *, size_t size, size_t count, void *)
{
    return size * count;
}

} // namespace

int main(int argc, char **argv)
{
    CURL *easy = curl_easy_init();
    if (argc != 2 || !easy)
        return 1;
    curl_easy_setopt(easy, CURLOPT_URL, argv[1]);
    curl_easy_setopt(easy, CURLOPT_PROXY, "");
    curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, drop);
    timespec next{};
    for (clock_gettime(CLOCK_MONOTONIC, &next);; ++next.tv_sec) {
        clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &next, nullptr);
        curl_easy_perform(easy);
    }
}
