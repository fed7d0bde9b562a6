#pragma once

#include "identity/sample_identities.h"
#include "support/played_platform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orl {} // namespace orl
