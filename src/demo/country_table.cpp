#include "country_table.h"

namespace orl::demo {

// Ranges that numbering authorities keep for fiction are used where a country has them (555-01xx in North
// America, 07700 900xxx, 020 91x, 0171 39200xx, 06 39 98, 070 174 06, 0491 570); the others are of the
// country's true shape.
// clang-format off
const std::vector<CountryRow> &countryTable()
{
    static const std::vector<CountryRow> table{
    // name, name on the page, slug, second website's path, icon, continent, languages, number patterns
    {"United States", "United States SMS numbers", "united-states", "united-states", "us", "North_America", "en es", "+1 202 555 01##;+1 305 555 01##;+1 415 555 01##;+1 646 555 01##;+1 713 555 01##"},
    {"Canada", "Canada", "canada", "canada", "ca", "North_America", "en fr", "+1 416 555 01##;+1 514 555 01##;+1 604 555 01##"},
    {"Mexico", "Mexico", "mexico", "", "mx", "North_America", "es", "+52 55 5550 ####;+52 33 5550 ####"},
    {"Puerto Rico", "Puerto Rico", "puerto-rico", "", "pr", "North_America", "es en", "+1 787 555 01##"},
    {"Dominican Republic", "Dominican Republic", "dominican-republic", "", "do", "North_America", "es", "+1 809 555 01##"},
    {"Costa Rica", "Costa Rica", "costa-rica", "", "cr", "North_America", "es", "+506 8550 ####"},
    {"Panama", "Free Panama phone numbers", "panama", "", "pa", "North_America", "es", "+507 6550 ####"},
    {"Brazil", "Brazil", "brazil", "brazil", "br", "South_America", "pt", "+55 11 95550 ####;+55 21 95550 ####"},
    {"Argentina", "Argentina", "argentina", "", "ar", "South_America", "es", "+54 9 11 5550 ####"},
    {"Chile", "Chile SMS", "chile", "", "cl", "South_America", "es", "+56 9 5550 ####"},
    {"Colombia", "Colombia", "colombia", "", "co", "South_America", "es", "+57 300 555 ####"},
    {"Peru", "Peru", "peru", "", "pe", "South_America", "es", "+51 955 50# ###"},
    {"Uruguay", "Uruguay", "uruguay", "", "uy", "South_America", "es", "+598 95 550 ###"},
    {"United Kingdom", "United Kingdom (Great Britain)", "united-kingdom", "united-kingdom", "gb", "Europe", "en", "+44 7700 900###"},
    {"Ireland", "Ireland", "ireland", "", "ie", "Europe", "en", "+353 20 91# ####"},
    {"Germany", "Temporary numbers in Germany", "germany", "germany", "de", "Europe", "de en", "+49 171 39200##"},
    {"France", "France", "france", "france", "fr", "Europe", "fr", "+33 6 39 98 ## ##"},
    {"Spain", "Spain", "spain", "spain", "es", "Europe", "es", "+34 655 50# ###"},
    {"Portugal", "Portugal", "portugal", "", "pt", "Europe", "pt", "+351 915 550 ###"},
    {"Italy", "Italy", "italy", "", "it", "Europe", "en fr", "+39 355 550 ####"},
    {"Netherlands", "Netherlands phone numbers", "netherlands", "netherlands", "nl", "Europe", "en de", "+31 6 5550 ####"},
    {"Belgium", "Belgium", "belgium", "", "be", "Europe", "fr en", "+32 455 50 ## ##"},
    {"Switzerland", "Switzerland", "switzerland", "", "ch", "Europe", "de fr", "+41 75 550 ## ##"},
    {"Austria", "Austria", "austria", "", "at", "Europe", "de", "+43 660 5550###"},
    {"Denmark", "Denmark", "denmark", "", "dk", "Europe", "en de", "+45 55 50 ## ##"},
    {"Norway", "Norway", "norway", "", "no", "Europe", "en", "+47 455 50 ###"},
    {"Sweden", "Sweden", "sweden", "sweden", "se", "Europe", "en", "+46 70 174 06 1#;+46 70 174 06 2#;+46 70 174 06 3#;+46 70 174 06 4#;+46 70 174 06 5#;+46 70 174 06 6#;+46 70 174 06 7#;+46 70 174 06 8#;+46 70 174 06 9#"},
    {"Finland", "Finland", "finland", "", "fi", "Europe", "en", "+358 45 555 0###"},
    {"Poland", "Poland", "poland", "", "pl", "Europe", "en uk", "+48 505 550 ###"},
    {"Czech Republic", "Czech Republic (Czechia)", "czech-republic", "", "cz", "Europe", "en de", "+420 605 550 ###"},
    {"Slovenia", "Slovenia", "slovenia", "", "si", "Europe", "en de", "+386 40 555 ###"},
    {"Hungary", "Hungary", "hungary", "", "hu", "Europe", "en de", "+36 20 555 0###"},
    {"Romania", "Receive SMS in Romania", "romania", "", "ro", "Europe", "en fr", "+40 755 550 ###"},
    {"Bulgaria", "Bulgaria", "bulgaria", "", "bg", "Europe", "en ru", "+359 87 555 0###"},
    {"Greece", "Greece", "greece", "", "gr", "Europe", "el", "+30 695 550 ####"},
    {"Croatia", "Croatia", "croatia", "", "hr", "Europe", "en de", "+385 91 555 0###"},
    {"Ukraine", "Ukraine", "ukraine", "", "ua", "Europe", "uk", "+380 50 555 ## ##"},
    {"Russia", "Russia (Russian Federation)", "russia", "", "ru", "Europe", "ru", "+7 955 555 ## ##"},
    {"Moldova", "Moldova", "moldova", "", "md", "Europe", "ru en", "+373 655 50 ###"},
    {"Lithuania", "Lithuania", "lithuania", "", "lt", "Europe", "en ru", "+370 655 50 ###"},
    {"Latvia", "Latvia", "latvia", "", "lv", "Europe", "en ru", "+371 2555 0###"},
    {"Estonia", "Estonia", "estonia", "", "ee", "Europe", "en ru", "+372 5555 0###"},
    {"Cyprus", "Cyprus", "cyprus", "", "cy", "Europe", "el en", "+357 95 550 ###"},
    {"India", "India", "india", "", "in", "Asia", "hi en", "+91 95555 0####"},
    {"Indonesia", "Indonesia numbers", "indonesia", "indonesia", "id", "Asia", "en", "+62 812 5550 ####"},
    {"Philippines", "Philippines", "philippines", "", "ph", "Asia", "en es", "+63 905 555 ####"},
    {"Malaysia", "Malaysia", "malaysia", "", "my", "Asia", "en zh", "+60 11 5550 ####"},
    {"Singapore", "Singapore", "singapore", "", "sg", "Asia", "en zh", "+65 8555 0###"},
    {"Thailand", "Thailand", "thailand", "", "th", "Asia", "th", "+66 65 550 ####"},
    {"Vietnam", "Vietnam", "vietnam", "", "vn", "Asia", "vi", "+84 355 550 ###"},
    {"China", "China (mainland)", "china", "", "cn", "Asia", "zh", "+86 155 5550 ####"},
    {"Hong Kong", "Hong Kong", "hong-kong", "", "hk", "Asia", "zh en", "+852 5550 ####"},
    {"Taiwan", "Taiwan", "taiwan", "", "tw", "Asia", "zh", "+886 955 550 ###"},
    {"Japan", "Japan", "japan", "", "jp", "Asia", "ja", "+81 70 5550 ####"},
    {"South Korea", "South Korea (Republic of)", "south-korea", "", "kr", "Asia", "ko", "+82 10 5550 ####"},
    {"Israel", "Israel", "israel", "", "il", "Asia", "he", "+972 55 550 ####"},
    {"Turkey", "Türkiye / Turkey", "turkey", "", "tr", "Asia", "tr", "+90 555 550 ## ##"},
    {"Saudi Arabia", "Saudi Arabia", "saudi-arabia", "", "sa", "Asia", "ar", "+966 55 550 ####"},
    {"United Arab Emirates", "United Arab Emirates (UAE)", "united-arab-emirates", "", "ae", "Asia", "ar en", "+971 55 550 ####"},
    {"Pakistan", "Pakistan", "pakistan", "", "pk", "Asia", "en", "+92 305 5550###"},
    {"Bangladesh", "Bangladesh", "bangladesh", "", "bd", "Asia", "en hi", "+880 1555 50####"},
    {"Georgia", "Georgia (Sakartvelo)", "georgia", "", "ge", "Asia", "ru en", "+995 555 50 ## ##"},
    {"Kazakhstan", "Kazakhstan", "kazakhstan", "", "kz", "Asia", "ru", "+7 700 555 ## ##"},
    {"Australia", "Australia SMS numbers", "australia", "", "au", "Oceania", "en", "+61 491 570 ###"},
    {"New Zealand", "New Zealand", "new-zealand", "", "nz", "Oceania", "en", "+64 21 555 0###"},
    {"Fiji", "Fiji", "fiji", "", "fj", "Oceania", "en hi", "+679 955 0###"},
    {"South Africa", "South Africa", "south-africa", "", "za", "Africa", "en", "+27 65 550 ####"},
    {"Nigeria", "Nigeria", "nigeria", "", "ng", "Africa", "en", "+234 805 550 ####"},
    {"Kenya", "Kenya", "kenya", "", "ke", "Africa", "en", "+254 755 550 ###"},
    {"Ghana", "Ghana", "ghana", "", "gh", "Africa", "en", "+233 55 550 ####"},
    {"Egypt", "Egypt", "egypt", "", "eg", "Africa", "ar", "+20 105 550 ####"},
    {"Morocco", "Morocco phone numbers", "morocco", "", "ma", "Africa", "ar fr", "+212 655 50####"},
    {"Senegal", "Senegal", "senegal", "", "sn", "Africa", "fr", "+221 75 550 ## ##"},
    {"Antarctica", "Antarctica (research stations)", "antarctica", "", "aq", "Antarctica", "en", "+672 11 5###"},
    };
    return table;
}
// clang-format on

} // namespace orl::demo
