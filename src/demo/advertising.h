#pragma once

#include "service.h"

namespace orl::demo {

/// The ad endpoint: a varied stock of house ads by unit, their pictures and the pages that they lead to.
///
/// "/units/UNIT/N.json" is the Nth ad that a program asks for there; "/pictures/AD-SHAPE.jpg" and
/// "/landing/AD" are what that document names.
class Advertising : public Service {
public:
    Reply answer(const Request &request) const override;
};

} // namespace orl::demo
