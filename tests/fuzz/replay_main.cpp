// Replays a fuzz corpus: feeds every file of the folder given as the argument to the
// fuzz entry point of this program, as libFuzzer would, and reports the count.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s CORPUS_DIR\n", argv[0]);
        return 2;
    }
    namespace fs = std::filesystem;
    std::error_code ec;
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(argv[1], ec))
        if (entry.is_regular_file())
            files.push_back(entry.path());
    if (ec || files.empty()) {
        std::fprintf(stderr, "no corpus files in %s\n", argv[1]);
        return 1;
    }
    for (const fs::path& file : files) {
        std::ifstream in(file, std::ios::binary);
        std::vector<std::uint8_t> bytes((std::istreambuf_iterator<char>(in)),
                                        std::istreambuf_iterator<char>());
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    }
    std::printf("%zu corpus files replayed\n", files.size());
    return 0;
}
