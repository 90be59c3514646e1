#pragma once

// Equiripple FIR design by the Parks-McClellan exchange.

#include <vector>

#include "signal/running_filters.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

enum RemezType : int { remezOrdinary = 0, remezDifferentiator = 1, remezHilbert = 2 };

// length taps; edges (2 per band, cycles per sample, ascending in [0, 0.5]),
// responses (each band's gain at its two edges, linear between), weights (one
// per band, > 0); density points of the dense grid per extremal. Ordinary
// filters come out symmetric, the other two antisymmetric. False when the
// search of the extrema fails or a stop is asked between iterations.
// extremalErrors, when given, receives the weighted errors at the last
// reference.
bool remezDesign(int length, const std::vector<double>& edges, const std::vector<double>& responses,
                 const std::vector<double>& weights, RemezType type, int density, std::vector<double>& taps,
                 const StopPoll& poll, std::vector<double>* extremalErrors = nullptr);

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
