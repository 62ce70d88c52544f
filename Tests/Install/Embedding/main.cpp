// Makes a post, sends it through its record as a hand-over does, and tells its title.
#include <EveryHeader.h>

int main() {
    const auto post = korvane::FlickrPost::init();
    post->title = QStringLiteral("Sunset \u03A9");
    const auto arrived = korvane::FlickrPost::initWithDictionary(post->serializedDictionary());
    korvane::NSLog("Title: %@", arrived->title);
    return arrived->title == post->title ? 0 : 1;
}
