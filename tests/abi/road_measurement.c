/* The spectrum road: samples wrapped in a record, windowed, transformed,
 * turned into decibels, averaged, corrected for the window, and written.
 *
 * Sixteen blocks of 1024 samples at 1.024 MHz hold a 0.5 V sine at 100.25 kHz
 * (a quarter bin off a bin centre) and white noise of 1 mV rms. Each block is
 * windowed with the flat-top window at peak 1, transformed with the real FFT,
 * converted to power in dB and folded into a running mean; the window's gain
 * then corrects the sine's level and its noise bandwidth turns the noise into
 * a density.
 * The averaged spectrum is written to the file named by the first argument
 * (spectrum.vec). Exit status 0 when the sine's level and the noise density
 * come out as generated. */
#include <math.h>
#include <stdio.h>
#include <zifaif/dsp.h>

#define N 1024
#define BLOCKS 16

/* Gaussian noise of unit variance: twelve uniform numbers of a fixed sequence, less 6. */
static double noise(unsigned long *seed) {
    double sum = -6;
    int i;
    for (i = 0; i < 12; ++i) {
        *seed = (*seed * 1103515245UL + 12345UL) & 0x7fffffffUL;
        sum += (double)*seed / 2147483648.0;
    }
    return sum;
}

int main(int argc, char **argv) {
    static double samples[N];
    const double pi = 3.14159265358979323846, fs = 1.024e6, f0 = 100.25e3, a = 0.5, sigma = 1e-3;
    const char *path = argc > 1 ? argv[1] : "spectrum.vec";
    dsp_vector block, spectrum, average;
    double gain, enbw, level, density = 0;
    unsigned long seed = 1;
    int b, k, peak = 0, bins = 0;
    FILE *f;

    dsp_init(&block); dsp_init(&spectrum); dsp_init(&average);
    block.data = samples; block.points = N; block.delta = 1 / fs; /* alloc 0: the array stays the caller's */
    for (b = 0; b < BLOCKS; ++b) {
        for (k = 0; k < N; ++k)
            samples[k] = a * sin(2 * pi * f0 * (b * N + k) / fs) + sigma * noise(&seed);
        if (dsp_copy(&spectrum, &block) != 0 ||
            dspi_window(&spectrum, DSP_WINDOW_FLATTOP, DSP_WINFLAG_NORM_PEAK) != 0 ||
            dspi_rfft(&spectrum) != 0 || dspi_magsq(&spectrum) != 0 || dspi_db(&spectrum, 10) != 0 ||
            dsph_avg(&spectrum, &average, NULL, 1, b + 1, 0, -1, 0) != 0)
            return 1;
    }

    /* The mean-normalised window has gain 1: its factor over the peak-1 window
     * corrects the level; the noise bandwidth (in bins of delta hertz) makes a density. */
    if (dsp_window_scale(&gain, DSP_WINDOW_FLATTOP, DSP_WINFLAG_NORM_MEAN, N) != 0 ||
        dsp_window_enbw(&enbw, DSP_WINDOW_FLATTOP, N) != 0 || dspi_offset(&average, 20 * log10(gain)) != 0)
        return 1;
    for (k = 1; k < average.points; ++k)
        if (average.data[k] > average.data[peak]) peak = k;
    for (k = 200; k < average.points; ++k, ++bins) /* away from the sine */
        density += average.data[k] - 10 * log10(enbw * average.delta);
    density /= bins;
    level = average.data[peak];
    printf("sine %.3f dB at %.2f kHz (window gain %.4f); noise %.1f dB(V^2/Hz) over %.3f bins\n",
           level, peak * average.delta / 1e3, gain, density, enbw);

    f = dspf_fopen(path, "wb");
    if (!f || dspf_fwrite(&average, f) != 0 || dspf_fclose(f) != 0) return 1;
    dsp_destroy(&spectrum); dsp_destroy(&average);
    /* One side holds half the amplitude: (a/2)^2. The mean of decibels lies
     * 2.51 dB below the decibels of the mean for noise power. */
    return fabs(level - 20 * log10(a / 2)) < 0.02 && fabs(density + 2.51 - 10 * log10(sigma * sigma / fs)) < 0.5 ? 0 : 1;
}
