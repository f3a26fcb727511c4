// The languages of the system.
#pragma once

#include "foundation/base/qor_export.h"

// One language: its code (as used by messages, labels and unit names), its name
// in its own language, and its two-letter ISO 639-1 code.
struct qor_country_st {
    const wchar_t* code;
    const wchar_t* name;
    const wchar_t* iso;
};

// The table of languages: German "DEU", English "ENG", French "FRA", Italian
// "ITA", ended by a row whose code is null. The table is static.
QOR_API const qor_country_st* qorDlCountrys();
