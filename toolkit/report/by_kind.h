#pragma once

// Makes one function of several, by the kind of their argument: for std::visit.
template <class... Functions>
struct PX_By_Kind : Functions... {
    using Functions::operator()...;
};
// The kinds are those of the functions.
template <class... Functions>
PX_By_Kind(Functions...) -> PX_By_Kind<Functions...>;
