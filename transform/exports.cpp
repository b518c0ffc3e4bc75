// C entry points of the transforms: one line each, double then float, in
// header order.

extern "C" {

// ---- FFT

// ---- DFT, DCT, Hilbert transform and analytic signal

}  // extern "C"
