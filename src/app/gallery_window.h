#pragma once

namespace orl {

/// `orl --gallery`: shows every component in each of its states until the window is closed, and gives the
/// exit code. It reads no host and keeps nothing.
int runGallery();

} // namespace orl
