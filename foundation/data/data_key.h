// CQorDataKey: the path of an item in a data tree.
#pragma once

#include "foundation/base/qor_obj.h"
#include "foundation/base/qor_string.h"

#include <cstdarg>

// A path of one or more segments, each a string or an integer; the empty key has
// none. The key is kept as a chain: this object holds the first segment and owns
// the key of the following segments, which next() hands out.
//
// A first segment that is the empty string makes a path start at the root of the
// data tree, whichever item it is applied to; a key of just the empty string names
// the root itself.
//
// Type codes (ADS numbering): 5003 an integer segment, 5005 a string segment, 5020
// a string segment that was built with that code. 5005 and 5020 segments of the
// same text are equal.
class QOR_API CQorDataKey : public CQorObj {
public:
    // The empty key.
    CQorDataKey();
    // From text: a backslash separates segments, all of them strings;
    // "ORV_MENU\COLOR\PDSIZE" has three, "" one (the root), null none.
    CQorDataKey(const wchar_t* text);
    // From pairs of a type code and a value, ended by a 0 in the place of a type:
    // (5005, L"SURFACE", 5003, 21, 0). 5005 and 5020 take a const wchar_t*, 5003 and
    // 5010 an int. An unknown code ends the key there; a null string is "".
    CQorDataKey(int type, ...);
    CQorDataKey(const CQorDataKey& other);
    CQorDataKey& operator=(const CQorDataKey& other);
    ~CQorDataKey() override;

    // Replace the whole key; return it.
    CQorDataKey& set(const wchar_t* text);
    CQorDataKey& set(int type, ...);
    CQorDataKey& setV(int type, va_list args);

    // Append one segment at the end; return the key.
    CQorDataKey& appendString(const wchar_t* text, int type = 5005);
    CQorDataKey& appendInt(int number);
    // Append all segments of another key.
    CQorDataKey& append(const CQorDataKey& other);

    bool isEmpty() const { return m_type == 0; }
    // The type code of the first segment (5003, 5005, 5020); 0 for the empty key.
    int type() const { return m_type; }
    bool isInt() const { return m_type == 5003; }
    // True when the first segment is the empty string: the path starts at the root.
    bool isRootPath() const { return !isInt() && m_type != 0 && m_text.isNull(); }
    // Number of segments.
    int segments() const;

    // The whole path as text, segments joined by backslashes, integers in decimal:
    // the same text the text constructor splits again for string segments. The
    // empty key gives "".
    operator const wchar_t*() const { return m_path.c_str(); }
    // The text of the first segment alone (the decimal number for an integer).
    const wchar_t* segmentText() const { return m_text.c_str(); }
    // The number of an integer key; 0 for a string key.
    operator long() const { return isInt() ? m_number : 0; }
    int number() const { return isInt() ? m_number : 0; }

    // By value, segment by segment: integers by number, strings exactly.
    bool operator==(const CQorDataKey& other) const;
    bool operator!=(const CQorDataKey& other) const { return !(*this == other); }
    // Order of the first segments within a directory: integers first, by number,
    // then strings, by their characters.
    bool segmentLess(const CQorDataKey& other) const;
    bool segmentEquals(const CQorDataKey& other) const;

    // The key of the following segments, or null at the last.
    const CQorDataKey* next() const { return m_next; }
    // The first segment alone.
    CQorDataKey first() const;

private:
    void clear();
    void rebuildPath();
    CQorDataKey* lastNode();

    int m_type = 0;
    int m_number = 0;
    CQorString m_text;
    CQorString m_path;
    CQorDataKey* m_next = nullptr;
};
