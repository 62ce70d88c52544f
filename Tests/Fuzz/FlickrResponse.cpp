// Answers of Flickr, sound, cut or hostile.
#include "Korvane/FlickrResponse.h"
#include "Korvane/FlickrPhotoSetResponse.h"
#include "Tests/Fuzz/Expect.h"

using namespace korvane;
using korvane::test::expect;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size) {
    const NSData body(QByteArray(reinterpret_cast<const char *>(bytes), qsizetype(size)));
    const bool isXML = NSXMLParser(body).parse();
    const auto response = FlickrResponse::responseWithData(body);
    expect(isXML || (!response->isSuccess() && response->errorCode == -1), "what is no XML is no success");
    const auto albums = FlickrPhotoSetResponse::responseWithData(body);
    expect(!albums->photoSets.empty() && albums->photoSets.front().identifier == 0, "the no-set entry is the first");
    return 0;
}
