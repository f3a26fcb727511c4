#include "foundation/records/countries.h"

const qor_country_st* qorDlCountrys() {
    static const qor_country_st table[] = {
        {L"DEU", L"Deutsch", L"de"},  {L"ENG", L"English", L"en"}, {L"FRA", L"Français", L"fr"},
        {L"ITA", L"Italiano", L"it"}, {nullptr, nullptr, nullptr},
    };
    return table;
}
