# Draws how the time of factoring two equal primes grows: awk -f scripts/growth.awk docs/benchmarks.md
# > docs/img/growth-factor.svg. It reads the rows "factor two equal primes, N digits" (all cores; the
# second cell ours, the third PARI's, in milliseconds). The time has a logarithmic scale.
function x(digits) { return left + width * (digits - 40) / 40 }
function y(ms) { return top + height * (log(most) - log(ms)) / (log(most) - log(least)) }
function line(name, colour, points, at) {
    printf "<polyline points=\"%s\" fill=\"none\" stroke=\"%s\" stroke-width=\"2.5\"/>\n", points, colour
    printf "<text x=\"%d\" y=\"%d\" fill=\"%s\" font-weight=\"bold\">%s</text>\n", left + 20, at, colour, name
}
BEGIN { FS = " *\\| *"; left = 70; width = 560; top = 24; height = 330; least = 5; most = 200000 }
$2 ~ /^factor two equal primes, [0-9]+ digits(, long)?$/ {
    split($2, word, " ")
    digits = word[5]
    if (digits < 40)
        next
    ours = ours sprintf("%.1f,%.1f ", x(digits), y($3))
    if ($4 + 0 > 0)
        pari = pari sprintf("%.1f,%.1f ", x(digits), y($4))
}
END {
    printf "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 680 410\" font-family=\"sans-serif\" font-size=\"13\">\n"
    printf "<rect width=\"680\" height=\"410\" fill=\"#f4f6fb\"/>\n"
    split("10 100 1000 10000 100000", mark, " ")
    split("10 ms|100 ms|1 s|10 s|100 s", label, "|")
    for (i = 1; i in mark; i++) {
        printf "<line x1=\"%d\" y1=\"%.1f\" x2=\"%d\" y2=\"%.1f\" stroke=\"#d5dbe5\"/>\n", left, y(mark[i]), left + width, y(mark[i])
        printf "<text x=\"%d\" y=\"%.1f\" text-anchor=\"end\" fill=\"#44506a\">%s</text>\n", left - 8, y(mark[i]) + 4, label[i]
    }
    for (digits = 40; digits <= 80; digits += 5)
        printf "<text x=\"%.1f\" y=\"374\" text-anchor=\"middle\" fill=\"#44506a\">%d</text>\n", x(digits), digits
    printf "<text x=\"%d\" y=\"398\" text-anchor=\"middle\" fill=\"#44506a\">digits</text>\n", left + width / 2
    line("PARI, one core", "#c8452b", pari, 48)
    line("ours, two cores", "#1f6f8b", ours, 68)
    print "</svg>"
}
