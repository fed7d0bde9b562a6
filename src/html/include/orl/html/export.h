#pragma once

/// Marks what the shared library of the engine shows; everything else in it is hidden. A program that uses
/// the shared library gets ORL_HTML_SHARED from its package.
#ifdef ORL_HTML_SHARED
#define ORL_HTML_API __attribute__((visibility("default")))
#else
#define ORL_HTML_API
#endif
