# Synthetic ground acceleration made by make_samples; not a recording of a real earthquake.
# Horizontal component, step varying smoothly between 0.0072 and 0.0078 s, 25 s.
# Clough-Penzien spectrum, Saragoni-Hart envelope, baseline corrected, seed 0x000000005EED0D01.
# Units: time in s, acceleration in m/s^2.
# 3331 samples, PGA 0.1200 g at 10.0916 s.
# time  acceleration
0.000000  0.000000E+00
6.790713  1.799055E-02
6.798506  -1.394718E-01
6.806298  -2.422661E-01
6.814089  -2.869939E-01
6.821879  -2.908932E-01
6.829669  -2.846282E-01
6.837458  -2.994069E-01
6.845247  -3.539206E-01
6.853035  -4.466318E-01
6.860822  -5.565705E-01
6.868608  -6.520086E-01
6.876393  -7.031198E-01
6.884178  -6.932936E-01
6.891961  -6.247246E-01
6.899744  -5.165246E-01
