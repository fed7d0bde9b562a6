#pragma once

#include "service.h"

namespace orl::demo {

/// Privacy policy, terms of service and licence: what the program does, in words for its user.
class LegalPages : public Service {
public:
    Reply answer(const Request &request) const override;
};

} // namespace orl::demo
