#pragma once

#include <vector>

namespace orl::demo {

/// A note in plain text; line breaks are part of it.
struct NoteText {
    const char *sender;
    const char *address;
    const char *subject;
    const char *text;
};

/// In several languages and scripts.
const std::vector<NoteText> &noteTexts();

// Pages by kind. Places that are filled in: @SERVICE@ @HOST@ @CODE@ @LINK@ @ADDRESS@ @NUMBER@.
extern const char *const welcomePage;
extern const char *const codePage;
extern const char *const newsletterPage;
extern const char *const receiptPage;
extern const char *const photosPage;
extern const char *const brokenPage;
extern const char *const latinPage; ///< says that it is UTF-8 and is not

} // namespace orl::demo
