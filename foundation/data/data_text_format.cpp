#include "foundation/data/data_text_format.h"

#include "foundation/base/file_io.h"
#include "foundation/base/number_text.h"
#include "foundation/base/utf8.h"
#include "foundation/data/data_dir.h"
#include "foundation/data/resbuf.h"

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>

namespace QOR {

namespace {

constexpr bool kWide16 = sizeof(wchar_t) == 2;

bool isSurrogate(std::uint32_t cp) {
    return cp >= 0xD800 && cp <= 0xDFFF;
}

void putEscape(std::string& out, std::uint32_t unit) {
    char buf[24];
    std::snprintf(buf, sizeof buf, "\\u{%X}", static_cast<unsigned>(unit));
    out += buf;
}

void writeString(std::string& out, const wchar_t* s) {
    out += '"';
    for (const wchar_t* p = s ? s : L""; *p; ++p) {
        std::uint32_t unit =
            kWide16 ? static_cast<std::uint16_t>(*p) : static_cast<std::uint32_t>(*p);
        if (kWide16 && unit >= 0xD800 && unit <= 0xDBFF) {
            const std::uint32_t low = static_cast<std::uint16_t>(p[1]);
            if (low >= 0xDC00 && low <= 0xDFFF) {
                utf8Append(out, 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00));
                ++p;
                continue;
            }
        }
        switch (unit) {
        case '"':
            out += "\\\"";
            continue;
        case '\\':
            out += "\\\\";
            continue;
        case '\n':
            out += "\\n";
            continue;
        case '\r':
            out += "\\r";
            continue;
        case '\t':
            out += "\\t";
            continue;
        default:
            break;
        }
        if (unit < 0x20 || unit == 0x7F || isSurrogate(unit) || unit > 0x10FFFF)
            putEscape(out, unit);
        else
            utf8Append(out, unit);
    }
    out += '"';
}

void writeKey(std::string& out, const CQorDataKey* key) {
    if (key && key->isInt()) {
        out += std::to_string(key->number());
        return;
    }
    writeString(out, key ? key->segmentText() : L"");
    if (key && key->type() == kRtKeyStr)
        out += 'k';
}

// One node as its token; lists are opened and closed by the caller's walk.
void writeAtom(std::string& out, const resbuf* rb) {
    switch (rb->restype) {
    case kRtNil:
        out += "nil";
        return;
    case kRtT:
        out += "t";
        return;
    case kRtLb:
        out += "(";
        return;
    case kRtLe:
        out += ")";
        return;
    case kRtDote:
        out += ".)";
        return;
    default:
        break;
    }
    switch (rbValueKind(rb->restype)) {
    case RbValueKind::Real:
        out += doubleToText(rb->resval.rreal);
        if (rb->restype == kRtAngle)
            out += 'a';
        return;
    case RbValueKind::Point:
        out += '[';
        for (int i = 0; i < 3; ++i) {
            if (i)
                out += ' ';
            out += doubleToText(rb->resval.rpoint[i]);
        }
        out += ']';
        if (rb->restype == kRtPoint)
            out += '2';
        return;
    case RbValueKind::Short:
        out += std::to_string(rb->resval.rint);
        out += 's';
        return;
    case RbValueKind::Long:
        out += std::to_string(rb->resval.rlong);
        if (rb->restype == kRtLong32)
            out += 'r';
        return;
    case RbValueKind::String:
        writeString(out, rb->resval.rstring);
        if (rb->restype == kRtKeyStr)
            out += 'k';
        return;
    case RbValueKind::Ename:
        out += '<';
        out += std::to_string(rb->resval.rlname[0]);
        out += ' ';
        out += std::to_string(rb->resval.rlname[1]);
        out += '>';
        return;
    default:
        // The tree keeps no other type codes (setData refuses them).
        out += "nil";
        return;
    }
}

// Nodes from `from` up to, not including, `to`, on one line.
void writeInline(std::string& out, const resbuf* from, const resbuf* to) {
    bool first = true;
    bool afterOpen = false;
    for (const resbuf* rb = from; rb && rb != to; rb = rb->rbnext) {
        const bool closing = rb->restype == kRtLe || rb->restype == kRtDote;
        if (!first && !afterOpen && !closing)
            out += ' ';
        else if (!first && closing && rb->restype == kRtDote && !afterOpen)
            out += ' ';
        writeAtom(out, rb);
        afterOpen = rb->restype == kRtLb;
        first = false;
    }
}

void indentTo(std::string& out, int indent) {
    out.append(static_cast<std::size_t>(indent) * 4, ' ');
}

void writeValue(std::string& out, const resbuf* chain, int indent) {
    if (!chain) {
        out += "nil";
        return;
    }
    // One list holding lists: each element on a line of its own.
    bool nested = false;
    if (chain->restype == kRtLb && rbSkipElement(chain) == nullptr) {
        for (const resbuf* e = chain->rbnext; e && e->restype != kRtLe && e->restype != kRtDote;
             e = rbSkipElement(e))
            if (e->restype == kRtLb)
                nested = true;
    }
    const resbuf* last = rbLast(const_cast<resbuf*>(chain));
    if (!nested || last->restype != kRtLe) {
        writeInline(out, chain, nullptr);
        return;
    }
    out += "(\n";
    for (const resbuf* e = chain->rbnext; e && e != last;) {
        const resbuf* after = rbSkipElement(e);
        indentTo(out, indent + 2);
        writeInline(out, e, after);
        out += '\n';
        e = after;
    }
    indentTo(out, indent + 1);
    out += ')';
}

void writeDir(std::string& out, const CQorDataDir* dir, int indent) {
    for (int i = 0; i < dir->len(); ++i) {
        const CQorDataItem* item = dir->itemAt(i);
        indentTo(out, indent);
        writeKey(out, item->getKey());
        if (item->isDir()) {
            if (item->getDir()->isEmpty()) {
                out += " { }\n";
                continue;
            }
            out += " {\n";
            writeDir(out, item->getDir(), indent + 1);
            indentTo(out, indent);
            out += "}\n";
        } else {
            out += " = ";
            writeValue(out, item->data(), indent);
            out += '\n';
        }
    }
}

// ---------------------------------------------------------------------------------

class Reader {
public:
    Reader(const char* text, std::size_t size) : m_p(text), m_end(text + size), m_lineStart(text) {
        if (size >= 3 && std::memcmp(text, "\xEF\xBB\xBF", 3) == 0) {
            m_p += 3;
            m_lineStart = m_p;
        }
    }

    bool readFile(CQorDataItem& root) { return readEntries(root, 0, nullptr); }
    const CQorString& error() const { return m_error; }

private:
    bool fail(const char* at, const char* what) {
        if (!m_error.isNull())
            return false;
        int line = m_line;
        const char* lineStart = m_lineStart;
        if (at < m_lineStart) {
            // Positions before the current line (an unclosed list) are recounted.
            line = 1;
            lineStart = m_begin;
            for (const char* q = m_begin; q < at; ++q)
                if (*q == '\n') {
                    ++line;
                    lineStart = q + 1;
                }
        }
        CQorString msg;
        msg.format(L"line %d, column %d: ", line, static_cast<int>(at - lineStart) + 1);
        for (const char* w = what; *w; ++w)
            msg += static_cast<wchar_t>(static_cast<unsigned char>(*w));
        m_error = msg;
        return false;
    }

    bool atEnd() const { return m_p >= m_end; }

    void skipBlanks() {
        while (!atEnd() && (*m_p == ' ' || *m_p == '\t' || *m_p == '\r'))
            ++m_p;
    }

    void newLine() {
        ++m_p;
        ++m_line;
        m_lineStart = m_p;
    }

    void skipComment() {
        while (!atEnd() && *m_p != '\n')
            ++m_p;
    }

    // After an entry: blanks, maybe a comment, then the end of the line or file.
    bool expectLineEnd() {
        skipBlanks();
        if (!atEnd() && *m_p == '#')
            skipComment();
        if (atEnd())
            return true;
        if (*m_p != '\n')
            return fail(m_p, "expected the end of the line");
        newLine();
        return true;
    }

    static bool isDelimiter(char c) {
        return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '(' || c == ')' ||
               c == '[' || c == ']' || c == '<' || c == '>' || c == '"' || c == '#' || c == '{' ||
               c == '}' || c == '=';
    }

    std::string word() {
        const char* start = m_p;
        while (!atEnd() && !isDelimiter(*m_p))
            ++m_p;
        // A NaN carries its bits in parentheses: nan(0x...).
        if (m_p - start == 3 && std::memcmp(start, "nan", 3) == 0 && !atEnd() && *m_p == '(') {
            const char* q = m_p;
            while (q < m_end && *q != ')' && *q != '\n' && q - m_p < 24)
                ++q;
            if (q < m_end && *q == ')') {
                m_p = q + 1;
                while (!atEnd() && !isDelimiter(*m_p))
                    ++m_p;
            }
        }
        return std::string(start, m_p);
    }

    static bool parseInteger(const std::string& w, std::size_t n, long long& out) {
        std::size_t i = 0;
        bool negative = false;
        if (i < n && (w[i] == '-' || w[i] == '+')) {
            negative = w[i] == '-';
            ++i;
        }
        if (i == n)
            return false;
        unsigned long long v = 0;
        for (; i < n; ++i) {
            if (w[i] < '0' || w[i] > '9')
                return false;
            if (v > (static_cast<unsigned long long>(INT64_MAX_) + 1) / 10)
                return false;
            v = v * 10 + static_cast<unsigned>(w[i] - '0');
            if (v > static_cast<unsigned long long>(INT64_MAX_) + 1)
                return false;
        }
        if (!negative && v > static_cast<unsigned long long>(INT64_MAX_))
            return false;
        out = negative ? static_cast<long long>(0 - v) : static_cast<long long>(v);
        return true;
    }
    static constexpr long long INT64_MAX_ = 0x7FFFFFFFFFFFFFFFll;

    static bool looksInteger(const std::string& w, std::size_t& digitsEnd) {
        std::size_t i = 0;
        if (i < w.size() && (w[i] == '-' || w[i] == '+'))
            ++i;
        const std::size_t first = i;
        while (i < w.size() && w[i] >= '0' && w[i] <= '9')
            ++i;
        digitsEnd = i;
        return i > first && (i == w.size() || (i + 1 == w.size() && (w[i] == 's' || w[i] == 'r')));
    }

    // A number inside [ ] or < >: an integer or real text without suffix.
    bool number(double& out) {
        const char* at = m_p;
        const std::string w = word();
        if (w.empty())
            return fail(at, "expected a number");
        const std::size_t used = doubleFromText(w.data(), w.size(), out);
        if (used == 0 || used != w.size())
            return fail(at, "expected a number");
        return true;
    }

    bool integer(long long& out) {
        const char* at = m_p;
        const std::string w = word();
        if (!parseInteger(w, w.size(), out))
            return fail(at, "expected an integer");
        return true;
    }

    static int hexDigit(char c) {
        if (c >= '0' && c <= '9')
            return c - '0';
        if (c >= 'a' && c <= 'f')
            return c - 'a' + 10;
        if (c >= 'A' && c <= 'F')
            return c - 'A' + 10;
        return -1;
    }

    // A quoted string at m_p.
    bool string(std::wstring& out) {
        const char* open = m_p;
        ++m_p;
        while (true) {
            if (atEnd() || *m_p == '\n')
                return fail(open, "the string is not closed on its line");
            const unsigned char c = static_cast<unsigned char>(*m_p);
            if (c == '"') {
                ++m_p;
                return true;
            }
            if (c == '\\') {
                const char* esc = m_p;
                ++m_p;
                if (atEnd())
                    return fail(esc, "unknown escape");
                const char e = *m_p++;
                switch (e) {
                case '\\':
                    out += L'\\';
                    break;
                case '"':
                    out += L'"';
                    break;
                case 'n':
                    out += L'\n';
                    break;
                case 'r':
                    out += L'\r';
                    break;
                case 't':
                    out += L'\t';
                    break;
                case 'u': {
                    if (atEnd() || *m_p != '{')
                        return fail(esc, "expected \\u{hex digits}");
                    ++m_p;
                    std::uint64_t v = 0;
                    int count = 0;
                    while (!atEnd() && hexDigit(*m_p) >= 0 && count < 9) {
                        v = v * 16 + static_cast<unsigned>(hexDigit(*m_p));
                        ++m_p;
                        ++count;
                    }
                    if (count == 0 || count > 8 || atEnd() || *m_p != '}')
                        return fail(esc, "expected \\u{hex digits}");
                    ++m_p;
                    if (v == 0)
                        return fail(esc, "a string cannot hold character 0");
                    if (kWide16 ? (v > 0x10FFFF ||
                                   (v > 0xFFFF && isSurrogate(static_cast<std::uint32_t>(v))))
                                : v > 0x7FFFFFFF)
                        return fail(esc, "character out of range");
                    wideAppend(out, static_cast<std::uint32_t>(v));
                    break;
                }
                default:
                    return fail(esc, "unknown escape");
                }
                continue;
            }
            if (c < 0x20 && c != '\t')
                return fail(m_p, "control character in a string");
            std::uint32_t cp = 0;
            const std::size_t n = utf8Decode(m_p, m_end, cp);
            if (n == 0)
                return fail(m_p, "invalid UTF-8");
            m_p += n;
            wideAppend(out, cp);
        }
    }

    bool key(CQorDataKey& out) {
        const char* at = m_p;
        if (*m_p == '"') {
            std::wstring text;
            if (!string(text))
                return false;
            int type = kRtStr;
            if (!atEnd() && *m_p == 'k') {
                type = kRtKeyStr;
                ++m_p;
            }
            out.appendString(text.c_str(), type);
            return true;
        }
        long long n = 0;
        const std::string w = word();
        if (w.empty())
            return fail(at, "expected a key");
        if (!parseInteger(w, w.size(), n))
            return fail(at, "expected a key (a quoted string or an integer)");
        if (n < INT32_MIN || n > INT32_MAX)
            return fail(at, "integer key out of range");
        out.appendInt(static_cast<int>(n));
        return true;
    }

    void append(resbuf*& head, resbuf*& tail, resbuf* node) {
        if (tail)
            tail->rbnext = node;
        else
            head = node;
        tail = node;
    }

    // A value up to the end of its line (or of its lists); the chain is the caller's.
    bool value(resbuf*& head) {
        head = nullptr;
        resbuf* tail = nullptr;
        struct Open {
            const char* at;
        };
        Open stack[64];
        int depth = 0;
        const char* firstOpen = nullptr;
        int count = 0;
        while (true) {
            skipBlanks();
            if (atEnd() || *m_p == '\n' || *m_p == '#') {
                if (depth == 0)
                    break;
                if (atEnd())
                    return fail(depth <= 64 ? stack[depth - 1].at : firstOpen,
                                "this '(' is not closed");
                if (*m_p == '#')
                    skipComment();
                else
                    newLine();
                continue;
            }
            const char* at = m_p;
            const char c = *m_p;
            if (c == '(') {
                ++m_p;
                if (depth < 64)
                    stack[depth].at = at;
                if (!firstOpen)
                    firstOpen = at;
                ++depth;
                append(head, tail, rbNew(kRtLb));
            } else if (c == ')') {
                if (depth == 0)
                    return fail(at, "')' without '('");
                ++m_p;
                --depth;
                append(head, tail, rbNew(kRtLe));
            } else if (c == '"') {
                std::wstring text;
                if (!string(text))
                    return false;
                short type = kRtStr;
                if (!atEnd() && *m_p == 'k') {
                    type = kRtKeyStr;
                    ++m_p;
                }
                resbuf* rb = rbString(text.c_str());
                rb->restype = type;
                append(head, tail, rb);
            } else if (c == '[') {
                ++m_p;
                double xyz[3];
                for (int i = 0; i < 3; ++i) {
                    skipBlanks();
                    if (!number(xyz[i]))
                        return false;
                }
                skipBlanks();
                if (atEnd() || *m_p != ']')
                    return fail(m_p, "expected ']' after three coordinates");
                ++m_p;
                short type = kRt3dPoint;
                if (!atEnd() && *m_p == '2') {
                    type = kRtPoint;
                    ++m_p;
                }
                append(head, tail, rbPoint(xyz, type));
            } else if (c == '<') {
                ++m_p;
                long long words[2];
                for (int i = 0; i < 2; ++i) {
                    skipBlanks();
                    if (!integer(words[i]))
                        return false;
                }
                skipBlanks();
                if (atEnd() || *m_p != '>')
                    return fail(m_p, "expected '>' after the two words of a name");
                ++m_p;
                resbuf* rb = rbNew(kRtEname);
                rb->resval.rlname[0] = words[0];
                rb->resval.rlname[1] = words[1];
                append(head, tail, rb);
            } else {
                const std::string w = word();
                if (w.empty())
                    return fail(at, "unexpected character in a value");
                if (w == "." && !atEnd() && *m_p == ')') {
                    if (depth == 0)
                        return fail(at, "'.)' without '('");
                    ++m_p;
                    --depth;
                    append(head, tail, rbNew(kRtDote));
                } else if (w == "nil") {
                    append(head, tail, rbNew(kRtNil));
                } else if (w == "t") {
                    append(head, tail, rbNew(kRtT));
                } else {
                    resbuf* rb = atom(w, at);
                    if (!rb)
                        return false;
                    append(head, tail, rb);
                }
            }
            ++count;
            if (c != '(' && !atEnd() && !isDelimiter(*m_p))
                return fail(m_p, "expected a blank between two elements");
        }
        if (count == 0)
            return fail(m_p, "expected a value");
        return true;
    }

    resbuf* atom(const std::string& w, const char* at) {
        std::size_t digitsEnd = 0;
        if (looksInteger(w, digitsEnd)) {
            long long v = 0;
            if (!parseInteger(w, digitsEnd, v)) {
                fail(at, "integer out of range");
                return nullptr;
            }
            const char suffix = digitsEnd < w.size() ? w[digitsEnd] : 0;
            if (suffix == 's') {
                if (v < -32768 || v > 32767) {
                    fail(at, "short out of range");
                    return nullptr;
                }
                return rbShort(static_cast<short>(v));
            }
            if (v < INT32_MIN || v > INT32_MAX) {
                fail(at, "integer out of range");
                return nullptr;
            }
            return rbLong(static_cast<std::int32_t>(v), suffix == 'r' ? kRtLong32 : kRtLong);
        }
        double d = 0.0;
        const std::size_t used = doubleFromText(w.data(), w.size(), d);
        if (used > 0 && (used == w.size() || (used + 1 == w.size() && w[used] == 'a')))
            return rbReal(d, used == w.size() ? kRtReal : kRtAngle);
        fail(at, "unknown word in a value");
        return nullptr;
    }

    // Entries up to the end of the file (depth 0) or the closing brace.
    bool readEntries(CQorDataItem& dirItem, int depth, const char* openedAt) {
        CQorDataDir* dir = dirItem.mkDir();
        bool any = false;
        while (true) {
            skipBlanks();
            if (atEnd()) {
                if (depth > 0)
                    return fail(openedAt, "this '{' is not closed");
                return true;
            }
            const char c = *m_p;
            if (c == '\n') {
                newLine();
                continue;
            }
            if (c == '#') {
                skipComment();
                continue;
            }
            if (c == '}') {
                if (depth == 0)
                    return fail(m_p, "'}' without '{'");
                ++m_p;
                return expectLineEnd();
            }
            if (c == '=' && depth == 0 && !any) {
                ++m_p;
                resbuf* chain = nullptr;
                if (!value(chain)) {
                    qorRelRb(chain);
                    return false;
                }
                CQorDataItem holder;
                holder.setData(chain, false);
                if (!expectLineEnd())
                    return false;
                skipToContent();
                if (!atEnd())
                    return fail(m_p, "a file whose root holds a value has no other entry");
                dirItem = holder;
                return true;
            }
            const char* keyAt = m_p;
            CQorDataKey k;
            if (!key(k))
                return false;
            if (k.isRootPath())
                return fail(keyAt, "the empty string is not a key");
            if (dir->getItem(&k))
                return fail(keyAt, "this key is given twice in its directory");
            skipBlanks();
            if (atEnd())
                return fail(m_p, "expected '=' or '{' after the key");
            if (*m_p == '=') {
                ++m_p;
                resbuf* chain = nullptr;
                if (!value(chain)) {
                    qorRelRb(chain);
                    return false;
                }
                CQorDataItem* item = new CQorDataItem();
                item->setData(chain, false);
                dir->set(&k, item, false);
                if (!expectLineEnd())
                    return false;
            } else if (*m_p == '{') {
                const char* open = m_p;
                ++m_p;
                if (depth + 1 >= kDataTextMaxDepth)
                    return fail(open, "directories nested too deep");
                CQorDataItem* child = dir->makeDir(&k);
                skipBlanks();
                if (!atEnd() && *m_p == '}') {
                    ++m_p;
                    if (!expectLineEnd())
                        return false;
                } else {
                    if (!expectLineEnd())
                        return false;
                    if (!readEntries(*child, depth + 1, open))
                        return false;
                }
            } else {
                return fail(m_p, "expected '=' or '{' after the key");
            }
            any = true;
        }
    }

    void skipToContent() {
        while (true) {
            skipBlanks();
            if (atEnd())
                return;
            if (*m_p == '\n')
                newLine();
            else if (*m_p == '#')
                skipComment();
            else
                return;
        }
    }

    const char* m_p;
    const char* m_end;
    const char* m_lineStart;
    const char* m_begin = m_p;
    int m_line = 1;
    CQorString m_error;
};

} // namespace

std::string dataTextWrite(const CQorDataItem& root) {
    std::string out;
    if (root.isDir()) {
        writeDir(out, root.getDir(), 0);
    } else {
        out += "= ";
        writeValue(out, root.data(), 0);
        out += '\n';
    }
    return out;
}

bool dataTextRead(const char* text, std::size_t size, CQorDataItem& root, CQorString& error) {
    if (!text && size > 0)
        return false;
    Reader reader(text ? text : "", text ? size : 0);
    CQorDataItem fresh(1);
    if (!reader.readFile(fresh)) {
        error = reader.error();
        return false;
    }
    root = fresh;
    return true;
}

bool dataTextWriteFile(const wchar_t* fileName, const CQorDataItem& root) {
    return writeFileBytes(fileName, dataTextWrite(root));
}

bool dataTextReadFile(const wchar_t* fileName, CQorDataItem& root, CQorString& error) {
    std::string bytes;
    if (!readFileBytes(fileName, bytes)) {
        error = L"cannot read the file";
        return false;
    }
    return dataTextRead(bytes.data(), bytes.size(), root, error);
}

} // namespace QOR
