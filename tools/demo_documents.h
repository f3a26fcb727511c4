// The documents the demo host renders: each built from the sample model through the
// library's image functions, or composed item by item to show the drawing styles.
#pragma once

#include <string>
#include <vector>

class CQorDataItem;
class CQorGDX;

namespace demo {

// Where the demo finds its data (folders end with a separator).
struct Inputs {
    std::wstring modelDir; // the sample model's files in the data text format
    std::wstring slideLib; // a slide library
};

struct Document {
    std::wstring name;  // file name without ending
    std::string title;  // one line for the report
    bool built = false; // false: the generator drew nothing
    int items = 0;
};

// Builds document number k (0 to count() - 1) of the model into gdx, and says
// what it is. model is the sample model's main file (demo_model.qdt).
int count();
Document build(int k, CQorDataItem& model, const Inputs& in, CQorGDX& gdx);

} // namespace demo
