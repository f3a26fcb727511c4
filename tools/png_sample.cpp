// Writes a test picture as PNG to the file named by the first argument: a
// gradient with a diagonal line, so that both literals and matches are used.
#include "tools/png_sample.h"
#include "tools/png_writer.h"

#include <cstdio>

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: png_sample <file.png>\n");
        return 2;
    }
    const std::string png =
        QOR::tools::pngEncode(kPngSampleWidth, kPngSampleHeight, pngSamplePixels());
    std::FILE* f = std::fopen(argv[1], "wb");
    if (!f)
        return 1;
    const bool ok = std::fwrite(png.data(), 1, png.size(), f) == png.size();
    return std::fclose(f) == 0 && ok ? 0 : 1;
}
