#include "host/hatch_pattern_table.h"

#include "foundation/base/file_io.h"
#include "foundation/base/number_text.h"

#include <string>

namespace QOR {

CHatchPatternTable::CHatchPatternTable() = default;

CHatchPatternTable::~CHatchPatternTable() {
    clear();
}

void CHatchPatternTable::clear() {
    for (int i = 0; i < m_patterns.len(); ++i)
        delete m_patterns[i];
    m_patterns.setLogicalLength(0);
}

namespace {

CQorString latin1(const std::string& s) {
    CQorString out;
    for (unsigned char c : s)
        out += static_cast<wchar_t>(c);
    return out;
}

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\x1A' || c == '\f' || c == '\v';
}

std::string trim(const std::string& s) {
    std::size_t b = 0, e = s.size();
    while (b < e && isBlank(s[b]))
        ++b;
    while (e > b && isBlank(s[e - 1]))
        --e;
    return s.substr(b, e - b);
}

CQorString upper(const wchar_t* s) {
    CQorString u(s ? s : L"");
    return u.makeUpper();
}

void note(CQorArrayTempl<CQorString>* rejected, int line, const wchar_t* why) {
    if (!rejected)
        return;
    CQorString msg;
    msg.format(L"line %d: %s", line, why);
    rejected->append(msg);
}

// The numbers of a data line; false when a field is not a number. Text after the
// last number is ignored, as are empty fields at the end.
bool numbers(const std::string& line, CQorArrayTempl<double>& out) {
    std::size_t pos = 0;
    CQorArrayTempl<std::string> fields;
    while (true) {
        const std::size_t comma = line.find(',', pos);
        fields.append(
            trim(line.substr(pos, comma == std::string::npos ? std::string::npos : comma - pos)));
        if (comma == std::string::npos)
            break;
        pos = comma + 1;
    }
    while (fields.len() > 0 && fields[fields.len() - 1].empty())
        fields.setLogicalLength(fields.len() - 1);
    for (int i = 0; i < fields.len(); ++i) {
        const std::string& f = fields[i];
        double v = 0.0;
        const std::size_t used = doubleFromText(f.data(), f.size(), v);
        if (used == 0)
            return false;
        if (used != f.size() && i + 1 != fields.len())
            return false;
        // Only finite numbers make a drawable pattern.
        if (!(v == v) || v > 1e300 || v < -1e300)
            return false;
        out.append(v);
    }
    return true;
}

} // namespace

int CHatchPatternTable::loadText(const char* text, std::size_t size,
                                 CQorArrayTempl<CQorString>* rejected) {
    if (!text)
        return 0;
    int headers = 0;
    Pattern* current = nullptr;
    std::size_t pos = 0;
    int lineNo = 0;
    while (pos < size) {
        std::size_t end = pos;
        while (end < size && text[end] != '\n')
            ++end;
        ++lineNo;
        std::string line(text + pos, end - pos);
        pos = end + 1;
        const std::size_t semicolon = line.find(';');
        if (semicolon != std::string::npos)
            line.erase(semicolon);
        line = trim(line);
        if (line.empty())
            continue;
        if (line[0] == '*') {
            const std::size_t comma = line.find(',');
            const std::string name =
                trim(line.substr(1, comma == std::string::npos ? std::string::npos : comma - 1));
            if (name.empty()) {
                note(rejected, lineNo, L"a pattern header without a name");
                current = nullptr;
                continue;
            }
            ++headers;
            const CQorString wname = latin1(name);
            Pattern* p = const_cast<Pattern*>(find(wname));
            if (p) {
                p->lines.setLogicalLength(0);
            } else {
                p = new Pattern();
                p->name = wname;
                m_patterns.append(p);
            }
            p->description =
                comma == std::string::npos ? CQorString() : latin1(trim(line.substr(comma + 1)));
            current = p;
            continue;
        }
        if (!current) {
            note(rejected, lineNo, L"a line family outside a pattern");
            continue;
        }
        CQorArrayTempl<double> family;
        if (!numbers(line, family)) {
            note(rejected, lineNo, L"not a list of numbers");
            continue;
        }
        if (family.len() < 5) {
            note(rejected, lineNo, L"fewer than five numbers");
            continue;
        }
        current->lines.append(family);
    }
    return headers;
}

int CHatchPatternTable::loadFile(const wchar_t* fileName, CQorArrayTempl<CQorString>* rejected) {
    std::string bytes;
    if (!readFileBytes(fileName, bytes))
        return -1;
    return loadText(bytes.data(), bytes.size(), rejected);
}

const CHatchPatternTable::Pattern* CHatchPatternTable::find(const wchar_t* name) const {
    const CQorString key = upper(name);
    if (key.isNull())
        return nullptr;
    for (int i = 0; i < m_patterns.len(); ++i)
        if (upper(m_patterns[i]->name.c_str()) == key)
            return m_patterns[i];
    return nullptr;
}

bool CHatchPatternTable::get(const wchar_t* name,
                             CQorArrayTempl<CQorArrayTempl<double>>& lines) const {
    const Pattern* p = find(name);
    if (!p) {
        lines.setLogicalLength(0);
        return false;
    }
    lines = p->lines;
    return true;
}

} // namespace QOR
