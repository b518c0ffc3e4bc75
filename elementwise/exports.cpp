// C entry points of the element-wise operations: one line each, double then
// float, in header order.

extern "C" {

// ---- in-place arithmetic and conversions

// ---- binary operations

// ---- rearrangement, editing and calculus

// ---- special functions

}  // extern "C"
