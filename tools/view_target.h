// What the viewer of the demo host is asked to show, told by the name it is given.
#pragma once

#include <string>

namespace demo {

enum class ViewKind {
    None,         // nothing the viewer shows
    Model,        // a data file of the sample model (".qdt"): its demo documents
    Slide,        // a slide file (".sld")
    LibrarySlide, // a member of a slide library: "<library>.slb:NAME"
    Picture,      // a picture file for the picture window
};

struct ViewTarget {
    ViewKind kind = ViewKind::None;
    std::wstring file;   // the file to open (the library for LibrarySlide)
    std::wstring member; // the slide's name in the library; empty otherwise
};

// The kind follows the ending, compared without regard to case: ".qdt" a model,
// ".sld" a slide, ".bmp", ".ico", ".jpg", ".jpeg", ".gif", ".emf" and ".wmf" a
// picture. A library member is named by the library's file, a colon and the
// member's name; the colon of a drive ("Z:\...") does not count as that colon.
// An empty name, another ending, and a library without member name give None.
ViewTarget viewTargetParse(const std::wstring& name);

} // namespace demo
