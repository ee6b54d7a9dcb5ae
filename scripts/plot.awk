# Draws the ratios of docs/benchmarks.md as bars: awk -v prefix="factor" -f scripts/plot.awk
# docs/benchmarks.md > docs/img/factor.svg. A row counts when its first cell begins with the prefix; its
# ratio is the fourth cell (a row without one is left out), its bound the fifth. The scale is logarithmic,
# because 0.1 and 10 are as far from 1.
function x(ratio) { return left + width * (log(ratio) - log(least)) / (log(most) - log(least)) }
BEGIN { FS = " *\\| *"; least = 0.03; most = 100; left = 300; width = 420; row = 24; n = 0 }
index($2, prefix) == 1 && $5 + 0 > 0 { name[n] = $2; ratio[n] = $5; bound[n] = $6; n++ }
END {
    height = n * row + 60
    printf "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 800 %d\" font-family=\"sans-serif\" font-size=\"13\">\n", height
    printf "<rect width=\"800\" height=\"%d\" fill=\"#f4f6fb\"/>\n", height
    split("0.03 0.1 0.3 1 3 10 30 100", mark, " ")
    for (i = 1; i in mark; i++) {
        printf "<line x1=\"%.1f\" y1=\"24\" x2=\"%.1f\" y2=\"%d\" stroke=\"%s\"/>\n", x(mark[i]), x(mark[i]), height - 30, mark[i] == 1 ? "#1f6f8b" : "#d5dbe5"
        printf "<text x=\"%.1f\" y=\"%d\" text-anchor=\"middle\" fill=\"#44506a\">%s</text>\n", x(mark[i]), height - 12, mark[i]
    }
    for (i = 0; i < n; i++) {
        y = 30 + i * row
        printf "<text x=\"%d\" y=\"%d\" text-anchor=\"end\" fill=\"#22304a\">%s</text>\n", left - 10, y + 13, name[i]
        printf "<rect x=\"%d\" y=\"%d\" width=\"%.1f\" height=\"16\" fill=\"#1f6f8b\"/>\n", left, y, x(ratio[i]) - left
        printf "<text x=\"780\" y=\"%d\" text-anchor=\"end\" fill=\"#22304a\">%s</text>\n", y + 13, ratio[i]
        if (bound[i] > 0)
            printf "<line x1=\"%.1f\" y1=\"%d\" x2=\"%.1f\" y2=\"%d\" stroke=\"#c8452b\" stroke-width=\"2\"/>\n", x(bound[i]), y - 2, x(bound[i]), y + 18
    }
    print "</svg>"
}
