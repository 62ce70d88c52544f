// One photo after the other, against curl over one connection; and the memory that large photos take.
#pragma once

namespace korvane::bench {

// False if a bound is missed.
bool oneStream();

} // namespace korvane::bench
