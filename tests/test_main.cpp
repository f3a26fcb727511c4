// The main of the test programs: the library wired as the DLL wires it at load, then
// every test.
#include "host/install.h"
#if defined(_WIN32)
#include "views/bitmap.h"
#endif

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    QOR::host::installDefaultHost();
#if defined(_WIN32)
    QOR::pictureLoaderInstall();
#endif
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
