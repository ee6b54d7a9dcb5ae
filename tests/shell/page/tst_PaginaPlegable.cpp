// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/page/EnlaceDePagina.h"
#include "shell/core/page/FiguraOscura.h"
#include "shell/core/page/JuezDePregunta.h"
#include "shell/core/page/PaginaPlegable.h"
#include "shell/core/page/TextoBuscado.h"
#include "shell/core/page/TrozosDePagina.h"
#include "tests/Tabla.h"

#include <QUrl>

namespace {

const QString Pagina =
    u"<nav><ol><li><a href=\"#a\">Uno &amp; <b>dos</b></a></li><li><a "
    u"href=\"P.html\">Otra</a></li></ol></nav>"
    "<p id=\"a\">Primo</p><details class=\"prueba\"><summary>Prueba <i>a</i></summary><p "
    "id=\"b\">primo</p>"
    "<details class=\"paso\"><summary>Paso</summary><p>PRIMÓ&#160;x</p></details></details>"
    "<p><img alt=\"Un primo &lt; 7\"/></p><p class=\"pie\">Pie</p>"
    "<ol><li id=\"q\" data-respuesta=\"2^3\"><p>¿8 o <i>9</i>?</p><p>x</p></li></ol>"
    "<script>primo</script><p>fin"_s;

/// What was read, in short.
QString como(const EnlaceDePagina &enlace)
{
    if (const auto *leccion = std::get_if<EnlaceDeLeccion>(&enlace)) {
        QStringList partes{leccion->leccion, leccion->tema};
        for (const auto &[campo, valor] : leccion->campos)
            partes << campo + u'→' + valor;
        return partes.join(u' ');
    }
    if (const auto *practicas = std::get_if<EnlaceDePracticas>(&enlace))
        return u"practicas %1 %2"_s.arg(practicas->clase).arg(practicas->nivel);
    const auto *pregunta = std::get_if<EnlaceDePregunta>(&enlace);
    return pregunta ? u"pregunta "_s + pregunta->lugar : u"roto"_s;
}

} // namespace

/// What is read out of a page, without a window.
class TestPaginaPlegable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loPlegadoSeDeja_data()
    {
        filasDeTexto<QString, QString>(uR"(
closed | | ▸ Prueba <i>a</i></a></p><p><img
a fold | 0 | ▾ Prueba <i>a</i></a></p><div class="plegado prueba"><p id="b">primo</p><p class="pliegue paso"><a href="pliegue:1">▸ Paso</a></p></div><p><img
a fold in it | 0 1 | ▾ Paso</a></p><div class="plegado paso"><p>PRIMÓ&#160;x</p></div></div><p>
an inner one alone | 1 | ▸ Prueba <i>a</i></a></p><p><img
an alternative text | 2 | Pie</p><p class="pliegue descripcion"><a href="pliegue:2">▾ Qué muestra la figura</a></p><div class="plegado descripcion"><p>Un primo &lt; 7</p></div><ol>
no script | | </ol><p>fin)"_s);
    }
    void loPlegadoSeDeja()
    {
        const auto [abiertos, parte] = estaFila<QString, QString>();
        QSet<int> pliegues;
        for (const QString &pliegue : abiertos.split(u' ', Qt::SkipEmptyParts))
            pliegues << pliegue.toInt();
        const QString html = PaginaPlegable(Pagina).muestra(pliegues);
        QVERIFY2(html.contains(parte), qPrintable(html));
    }

    void loQueSeSabeDeUnaPagina()
    {
        PaginaPlegable pagina(Pagina);
        QCOMPARE(pagina.pliegues(), 3);
        QCOMPARE(pagina.alrededor(1), (QList<int>{0, 1}));
        QCOMPARE(pagina.pliegueDe(u"b"_s), 0);
        QCOMPARE(pagina.pliegueDe(u"a"_s), -1);
        QCOMPARE(pagina.contenido().size(), 1);
        QCOMPARE(pagina.contenido().first().lugar + pagina.contenido().first().titulo,
                 u"aUno & dos"_s);
        QCOMPARE(pagina.pregunta(u"q"_s)->enunciado, u"¿8 o <i>9</i>?"_s);
        QCOMPARE(pagina.pregunta(u"q"_s)->respuesta, u"2^3"_s);
        QVERIFY(!pagina.pregunta(u"a"_s));
        QCOMPARE(pagina.halla(u"prÍmo"_s), (QList<int>{-1, 0, 1, 2}));
        QCOMPARE(pagina.halla(u"o x"_s), QList<int>{1});
        QCOMPARE(pagina.halla(u"primo paso"_s), QList<int>()); // over two blocks
        QCOMPARE(pagina.halla({}), QList<int>());
        QCOMPARE(halla(u"aa"_s, u"aaÁA"_s), (QList<qsizetype>{0, 2}));
        for (const QString &texto : {u"<details>"_s, u"</details><summary>"_s, u"a < b > c"_s,
                                     u"<details><summary>x"_s, u"<p class='a\"'>&#x110000;"_s})
            QVERIFY(PaginaPlegable(texto).muestra({0}).size() >= 0);
        QCOMPARE(PaginaPlegable(u"1 < 2 > 0"_s).muestra({}), u"1 < 2 > 0"_s);
    }

    void enlaces_data()
    {
        filasDeTexto<QString, QString>(uR"(
numora:primos/factorizacion?TxtN=2^67-1 | primos factorizacion TxtN→2^67-1
numora:primos/test | primos test
numora:rsa/cod-decod?txtNº_0=6&txtS=1%2B2%20a%26b%3D%23%25 | rsa cod-decod txtNº_0→6 txtS→1+2 a&b=#%
numora:minical/hoja?A1=2+2&A1=x:y=z | minical hoja A1→2+2 A1→x:y=z
numora:practicas/primos.factores?nivel=3 | practicas primos.factores 3
numora:practicas/rsa.t | practicas rsa.t 1
numora:pregunta/recuerda-1 | pregunta recuerda-1
no scheme | primos/test | roto
another scheme | file:///etc/passwd | roto
an authority | numora://primos/test | roto
a longer way | numora:primos/../rsa/clave | roto
no topic | numora:primos | roto
a fragment | numora:primos/test#x | roto
a field without a name | numora:primos/test?=3 | roto
a control character | numora:primos/test?TxtN=%1B%00 | roto
another field of practice | numora:practicas/rsa.t?nivel=1&x=2 | roto
too high a level | numora:practicas/rsa.t?nivel=10 | roto
no level | numora:practicas/rsa.t?nivel=a | roto
fields of a question | numora:pregunta/a?x=1 | roto)"_s);
        const QString largo(EnlaceDeLeccion::LongitudMaxima, u'9');
        otraFila(u"as long as may be"_s, u"numora:a/b?c="_s + largo, u"a b c→"_s + largo);
        otraFila(u"longer"_s, u"numora:a/b?c=1"_s + largo, u"roto"_s);
        otraFila(u"too many"_s, u"numora:a/b?"_s + u"c=1&"_s.repeated(41), u"roto"_s);
    }
    void enlaces()
    {
        const auto [direccion, leido] = estaFila<QString, QString>();
        QCOMPARE(como(leeEnlace(QUrl(direccion))), leido);
    }

    void respuestas_data()
    {
        filasDeTexto<QString, QString, int>(uR"(
2^3 | 8 | 1 || 2^3 | 9−1 | 1 || 2^3 | 7 | 0 || 2^3 | sí | -1
sí | Si | 1 || sí | yes | 1 || sí | NO | 0 || no | n | 1 || yes | s | 1 || no | 0 | -1)"_s);
    }
    void respuestas()
    {
        const auto [esperada, respuesta, veredicto] = estaFila<QString, QString, int>();
        const Juicio juicio = juzgaPregunta(esperada, respuesta);
        QCOMPARE(juicio.juzgada ? int(juicio.acertada) : -1, veredicto);
        QVERIFY(!juicio.palabra.isEmpty());
    }

    void figurasYEstilo()
    {
        QCOMPARE(estiloDelPrograma(u"/* @media */p {} @media print { p {} } h1 {}"_s), u"p {} "_s);
        QCOMPARE(estiloDelPrograma(u"p {}"_s), u"p {}"_s);
        const QByteArray clara =
            "<svg><rect x=\"0\" y=\"0\" width=\"9\" rx=\"14\" fill=\"#f4f6fb\"/><rect "
            "fill=\"#F4F6FB\" "
            "stroke=\"#1f6f8b\"/><text fill=\"#ffffff\">#1f6f8b</text><path fill=\"#dbeaf1\" "
            "stroke=\"#000000\"/></svg>";
        QCOMPARE(figuraOscura(clara),
                 QByteArray("<svg><rect fill=\"#171c20\" stroke=\"#5bb3d0\"/><text "
                            "fill=\"#171c20\">#1f6f8b</text><path fill=\"#22333c\" "
                            "stroke=\"#e4eaed\"/></svg>"));
    }
};

QTEST_GUILESS_MAIN(TestPaginaPlegable)
#include "tst_PaginaPlegable.moc"
