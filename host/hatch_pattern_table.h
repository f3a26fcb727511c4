// QOR::CHatchPatternTable: hatch patterns read from .pat text.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_obj.h"
#include "foundation/base/qor_string.h"

#include <cstddef>

namespace QOR {

// The usual pattern file format:
//   *NAME, description
//   angle, x, y, shift, distance [, dash, ...]
//   ...
// A ';' starts a comment (a whole line or the rest of one). Blank lines, spaces and
// tabs around fields, CR LF line ends, a DOS end-of-file mark (^Z) and text after
// the last number of a line are tolerated. A line that is neither a header nor five
// or more numbers is rejected and noted, and reading goes on: the rest of its
// pattern and of the file is kept. Lines before the first header are rejected.
//
// Names are looked up without regard to case (ASCII and Latin-1), as hosts do. A
// name read again replaces the lines of the earlier pattern of that name.
class QOR_API CHatchPatternTable : public CQorObj {
public:
    struct Pattern {
        CQorString name;
        CQorString description;
        CQorArrayTempl<CQorArrayTempl<double>> lines;
    };

    CHatchPatternTable();
    ~CHatchPatternTable() override;

    // Reads .pat text (bytes: ASCII or Latin-1 text). Returns the number of pattern
    // headers read; `rejected` (when given) receives one "line N: reason" per
    // rejected line, appended.
    int loadText(const char* text, std::size_t size,
                 CQorArrayTempl<CQorString>* rejected = nullptr);
    // The same for a file; -1 when it cannot be read.
    int loadFile(const wchar_t* fileName, CQorArrayTempl<CQorString>* rejected = nullptr);

    // The line families of a name; false, with `lines` empty, for an unknown name.
    bool get(const wchar_t* name, CQorArrayTempl<CQorArrayTempl<double>>& lines) const;
    // The pattern of a name, null when unknown.
    const Pattern* find(const wchar_t* name) const;

    int count() const { return m_patterns.len(); }
    const Pattern& at(int i) const { return *m_patterns[i]; }
    void clear();

private:
    CHatchPatternTable(const CHatchPatternTable&) = delete;
    CHatchPatternTable& operator=(const CHatchPatternTable&) = delete;

    CQorArrayTempl<Pattern*> m_patterns;
};

// The patterns this library ships (ANSI31 to ANSI38, dense fills, brick, dots,
// cross, gravel, insulation) as .pat text.
QOR_API const char* builtinPatternText();

} // namespace QOR
