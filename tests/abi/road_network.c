/* The network-analyser road: one-port error terms from three standards, a
 * corrected trace, and the trace searched and formatted for display.
 *
 * A reflectometer with known errors measures three standards (open, short,
 * load) and a device: a 40-ohm resistor in series with 10 nH and 1.1258 pF,
 * which resonates at 1.5 GHz. The program derives the error terms from the
 * standards, corrects the device's trace, checks it against the device's true
 * reflection, then finds the best match on the return-loss trace. Exit status 0
 * when every step agrees. */
#include <math.h>
#include <stdio.h>
#include <zifaif/instrument.h>
/* After the library's headers: <complex.h> defines complex, a field name there. */
#include <complex.h>

#define N 300

/* What the reflectometer reads for a reflection g: directivity e00, source
 * match e11 and reflection tracking e10e01 added to the truth. */
static double complex raw(double complex g, double complex e00, double complex e11, double complex e10e01) {
    return e00 + e10e01 * g / (1.0 - e11 * g);
}

int main(void) {
    static double freq[N], rl[N], phase[N];
    static double complex open[N], shrt[N], load[N], g_open[N], g_short[N], g_load[N];
    static double complex truth[N], measured[N], corrected[N];
    const double pi = 3.14159265358979323846;
    double worst = 0;
    int k, best;

    vfpd_ExpandLinear(freq, N, 10e6, 3e9); /* 10 MHz steps: 1.5 GHz is point 149 */
    for (k = 0; k < N; ++k) {
        const double w = 2 * pi * freq[k];
        const double complex z = 40.0 + I * (w * 10e-9 - 1.0 / (w * 1.1258e-12));
        const double complex e00 = 0.05 + 0.02 * I + 0.01 * cexp(I * w * 0.2e-9);
        const double complex e11 = 0.1 - 0.05 * I;
        const double complex e10e01 = 0.9 * cexp(-I * w * 1e-9);
        truth[k] = (z - 50.0) / (z + 50.0);
        g_open[k] = 1.0, g_short[k] = -1.0, g_load[k] = 0.0;
        open[k] = raw(g_open[k], e00, e11, e10e01);
        shrt[k] = raw(g_short[k], e00, e11, e10e01);
        load[k] = raw(g_load[k], e00, e11, e10e01);
        measured[k] = raw(truth[k], e00, e11, e10e01);
    }

    /* The three readings become directivity, source match and reflection tracking. */
    Compute1PortTerms((double *)open, (double *)shrt, (double *)load, (const double *)g_open,
                      (const double *)g_short, (const double *)g_load, 0, N);
    if (Correct1Port((double *)open, (double *)shrt, (double *)load, (double *)measured,
                     (double *)corrected, 0, N) != N)
        return 1;
    for (k = 0; k < N; ++k)
        if (cabs(corrected[k] - truth[k]) > worst) worst = cabs(corrected[k] - truth[k]);

    /* Return loss in dB and phase in degrees; the best match is the largest return loss. */
    vfpd_FormatBuffer(5, (double *)corrected, rl, 0, N);
    vfpd_FormatBuffer(2, (double *)corrected, phase, 0, N);
    best = vfpd_FindMax(rl, 0, N);
    printf("largest error after correction %.2g; best match at %.4g GHz: return loss %.2f dB, phase %.1f degrees\n",
           worst, freq[best] / 1e9, rl[best], phase[best]);
    /* At resonance the device is 40 ohms: reflection -1/9, return loss 19.08 dB. */
    return worst < 1e-12 && best == 149 && fabs(rl[best] - 20 * log10(9.0)) < 1e-3 &&
                   fabs(fabs(phase[best]) - 180) < 0.5 ? 0 : 1;
}
