// Fuzz target of the slide decoder. The bytes are decoded as a slide, and then as a
// slide library whose every member is looked up and decoded by one decoder, so the
// test number carries over between members. A decoding must stay inside the bytes
// and end.
#include "slides/slide_decoder.h"
#include "slides/slide_library.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

class CCountingSink : public QOR::ISlideSink {
public:
    void slideLine(int, int, int, int) override { ++count; }
    void slidePolygon(const QOR::SlidePoint* points, std::size_t n) override {
        if (n < 2 || points[0].x != points[n - 1].x || points[0].y != points[n - 1].y)
            std::abort();
        ++count;
    }
    void slideColor(int index) override {
        if (index < 0 || index > 255)
            std::abort();
        ++count;
    }
    std::size_t count = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    QOR::CSlideDecoder dec;
    CCountingSink sink;
    if (dec.decode(data, size, sink) && dec.endPos() > size)
        std::abort();
    for (std::size_t p = QOR::kSlideLibHeaderSize; p + QOR::kSlideLibEntrySize <= size && data[p];
         p += QOR::kSlideLibEntrySize) {
        const std::string name(reinterpret_cast<const char*>(data + p), QOR::kSlideLibNameSize);
        std::size_t off = 0;
        std::size_t len = 0;
        if (!QOR::slideLibraryFind(data, size, name.c_str(), off, len))
            continue;
        if (off > size || len > size - off)
            std::abort();
        dec.decode(data + off, len, sink);
    }
    return 0;
}
