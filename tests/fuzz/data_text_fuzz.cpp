// Fuzz target of the data text reader: any bytes must read or fail cleanly; what
// reads must write back to a text that reads again to the same text.
#include "foundation/data_tree.h"

#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CQorDataItem root(1);
    const CQorDataKey keep(L"KEEP");
    dataItemSet(&root, &keep, 1);
    CQorString error;
    const char* text = reinterpret_cast<const char*>(data);
    if (!QOR::dataTextRead(text, size, root, error)) {
        // A failed read keeps the tree and says where.
        if (!root.getItem(&keep) || error.find(L"line ") != 0)
            std::abort();
        return 0;
    }
    const std::string written = QOR::dataTextWrite(root);
    CQorDataItem again(1);
    if (!QOR::dataTextRead(written.data(), written.size(), again, error))
        std::abort();
    if (QOR::dataTextWrite(again) != written)
        std::abort();
    return 0;
}
