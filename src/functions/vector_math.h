#pragma once

// Vectorised sin, cos, exp and log over blocks of doubles, dispatched at run
// time to the widest instruction set the processor has (AVX-512, AVX2 with
// FMA, or SSE2). One number alone goes through the very same vector code as a
// lane of a block, so a number inside an array and the same number alone give
// the same bits. The kernels are those of the SLEEF library, accurate to 1 ulp.

#include <cstddef>

namespace VarnholtMath {
namespace ValueTypes {
namespace vectormath {

enum InstructionSet { instructionSse2 = 0, instructionAvx2 = 1, instructionAvx512 = 2 };

// The widest set this processor runs.
InstructionSet widestInstructionSet();
// The set in use; the widest unless chosen otherwise.
InstructionSet instructionSet();
// Chooses the set in use; false, and nothing changes, when the processor
// cannot run it. Different sets may differ in the last bit (with and without
// fused multiply-add), so every result of one run comes from one set.
bool useInstructionSet(InstructionSet set);

// out[i] = f(x[i]) for i < n; out may be x.
void sin(const double* x, double* out, std::size_t n);
void cos(const double* x, double* out, std::size_t n);
void exp(const double* x, double* out, std::size_t n);
void log(const double* x, double* out, std::size_t n);

// One number through the same kernels.
inline double sin1(double x) { double r; sin(&x, &r, 1); return r; }
inline double cos1(double x) { double r; cos(&x, &r, 1); return r; }
inline double exp1(double x) { double r; exp(&x, &r, 1); return r; }
inline double log1(double x) { double r; log(&x, &r, 1); return r; }

} // namespace vectormath
} // namespace ValueTypes
} // namespace VarnholtMath
