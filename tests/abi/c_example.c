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
    wrapped.delta = 0.001;
    if (dsp_copy(&copy, &wrapped) != 0) return 1;

    f = dspf_fopen(path, "wb");                  /* binary form, header and samples */
    if (!f || dspf_fwrite(&copy, f) != 0 || dspf_fclose(f) != 0) return 1;
    f = dspf_fopen(path, "rb");
    if (!f || dspf_fread(&back, f) != 1) return 1; /* 1: one vector read */
    dspf_fclose(f);

    dsp_cmp(&copy, &back, 0.0, &order);          /* 0: equal spacing and samples */
    dsp_destroy(&copy); dsp_destroy(&back); dsp_destroy(&wrapped);
    return order == 0 ? 0 : 1;
}
