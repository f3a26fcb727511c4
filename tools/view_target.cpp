#include "tools/view_target.h"

#include <cwctype>

namespace demo {

namespace {

// True when text ends in ending (lower case), the case of text ignored.
bool endsWith(const std::wstring& text, const wchar_t* ending) {
    const std::wstring e(ending);
    if (text.size() < e.size())
        return false;
    for (size_t k = 0; k < e.size(); ++k)
        if (static_cast<wchar_t>(std::towlower(text[text.size() - e.size() + k])) != e[k])
            return false;
    return true;
}

} // namespace

ViewTarget viewTargetParse(const std::wstring& name) {
    ViewTarget t;
    // A member's colon comes after the library's ending; the drive's is the second
    // character.
    const size_t colon = name.rfind(L':');
    if (colon != std::wstring::npos && colon > 1 && endsWith(name.substr(0, colon), L".slb")) {
        t.file = name.substr(0, colon);
        t.member = name.substr(colon + 1);
        t.kind = t.member.empty() ? ViewKind::None : ViewKind::LibrarySlide;
        if (t.kind == ViewKind::None)
            t.file.clear();
        return t;
    }
    if (endsWith(name, L".qdt"))
        t.kind = ViewKind::Model;
    else if (endsWith(name, L".sld"))
        t.kind = ViewKind::Slide;
    else
        for (const wchar_t* e : {L".bmp", L".ico", L".jpg", L".jpeg", L".gif", L".emf", L".wmf"})
            if (endsWith(name, e))
                t.kind = ViewKind::Picture;
    if (t.kind != ViewKind::None)
        t.file = name;
    return t;
}

} // namespace demo
