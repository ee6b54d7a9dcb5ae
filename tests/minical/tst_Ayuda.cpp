// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/Expresiones.h"
#include "tests/minical/HojaDePrueba.h"
#include "tests/shell/support/Entorno.h"

namespace {

/// One row of a table of the page: the texts of its cells, by the headings of the columns.
using Fila = QHash<QString, QString>;

/// The help page in one language, and what its tables call their columns.
struct Pagina
{
    QString ruta;
    QString celda;
    QStringList expresion;
    QStringList resultado;
};

const QList<Pagina> paginas{
    {u"MiniCal.html"_s, u"Celda"_s, {u"Escribes"_s, u"Ejemplo"_s}, {u"Ves"_s, u"Resultado"_s}},
    {u"English/MiniCal.html"_s,
     u"Cell"_s,
     {u"You write"_s, u"Example"_s},
     {u"You see"_s, u"Result"_s}},
};

void filaPorPagina()
{
    QTest::addColumn<Pagina>("pagina");
    for (const Pagina &pagina : paginas)
        QTest::newRow(qPrintable(pagina.ruta)) << pagina;
}

QString contenido(const QString &ruta)
{
    QFile archivo(Entorno::carpetaDeTrabajo() + u'/' + ruta);
    return archivo.open(QIODevice::ReadOnly) ? QString::fromUtf8(archivo.readAll()) : QString();
}

QString texto(const Pagina &pagina)
{
    return contenido(u"Doc/"_s + pagina.ruta);
}

/// What the table of translations says for a text.
QString enIngles(const QString &original)
{
    const QString tabla = contenido(u"Numora.txt"_s);
    const auto inicio = tabla.indexOf(u'\n' + original + u'=') + original.size() + 2;
    return tabla.mid(inicio, tabla.indexOf(u'\n', inicio) - inicio);
}

QList<QList<Fila>> tablas(const Pagina &pagina)
{
    QList<QList<Fila>> todas;
    QStringList cabeceras;
    QStringList celdas;
    QXmlStreamReader xml(texto(pagina));
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"table"_s) {
            todas << QList<Fila>();
            cabeceras.clear();
        } else if (xml.isStartElement() && xml.name() == u"th"_s) {
            cabeceras << xml.readElementText(QXmlStreamReader::IncludeChildElements);
        } else if (xml.isStartElement() && xml.name() == u"td"_s) {
            celdas << xml.readElementText(QXmlStreamReader::IncludeChildElements);
        } else if (xml.isEndElement() && xml.name() == u"tr"_s && !celdas.isEmpty()) {
            Fila fila;
            for (qsizetype i = 0; i < std::min(cabeceras.size(), celdas.size()); ++i)
                fila.insert(cabeceras[i], celdas[i]);
            todas.last() << fila;
            celdas.clear();
        }
    }
    return todas;
}

/// What is written or what is seen, under either of the headings that the page uses.
QString dato(const Fila &fila, const QStringList &cabeceras)
{
    return fila.value(cabeceras.first(), fila.value(cabeceras.last()));
}

} // namespace

/// Every example of the help page in each of its languages, in the sheet.
class TestAyuda : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Entorno::limpia(); }

    void ejemplos_data() { filaPorPagina(); }
    void ejemplos()
    {
        QFETCH(Pagina, pagina);
        int probados = 0;
        int situados = 0;
        const auto todas = tablas(pagina);
        for (const QList<Fila> &tabla : todas) {
            HojaDeCalculo hoja;
            for (const Fila &fila : tabla) {
                const QString expresion = dato(fila, pagina.expresion);
                QString espera = dato(fila, pagina.resultado);
                if (expresion.isEmpty() || espera.isEmpty())
                    continue;
                QString visto = entra(hoja, fila.value(pagina.celda, u"Y99"_s), expresion);
                if (espera.endsWith(u'…')) {
                    espera.chop(1);
                    visto.truncate(espera.size());
                }
                QVERIFY2(visto == espera, qPrintable(expresion + u" = "_s + visto));
                ++probados;
                situados += fila.contains(pagina.celda) ? 1 : 0;
            }
        }
        QVERIFY(probados > 40);
        QVERIFY(situados > 10);
    }

    /// The page tells of the functions what the library's table does: all of them, in its order.
    void funciones_data() { filaPorPagina(); }
    void funciones()
    {
        QFETCH(Pagina, pagina);
        const bool ingles = pagina.ruta.startsWith(u"English"_s);
        QStringList enLaPagina;
        const auto todas = tablas(pagina);
        for (const QList<Fila> &tabla : todas) {
            for (const Fila &fila : tabla) {
                const QString nombre = dato(fila, {u"Función"_s, u"Function"_s});
                if (!nombre.isEmpty())
                    enLaPagina << nombre + u": "_s + dato(fila, {u"Qué da"_s, u"What it gives"_s});
            }
        }
        QStringList enLaTabla;
        for (const FuncionDeExpresiones &f : funcionesDeExpresiones())
            enLaTabla << (ingles ? f.internacional + u": "_s + enIngles(f.descripcion)
                                 : f.nombre + u": "_s + f.descripcion);
        QCOMPARE(enLaPagina, enLaTabla);
    }

    /// The blocks to paste give the last result of the table that stands below each.
    void bloques_data() { filaPorPagina(); }
    void bloques()
    {
        QFETCH(Pagina, pagina);
        const QStringList ultimos{u"886731088897/627013566048"_s, u"72"_s};
        const QString todo = texto(pagina);
        qsizetype desde = 0;
        for (const QString &ultimo : ultimos) {
            QVERIFY(todo.indexOf(u"<pre>"_s, desde) > 0);
            const auto inicio = todo.indexOf(u"<pre>"_s, desde) + 5;
            desde = todo.indexOf(u"</pre>"_s, inicio);
            QList<QStringList> bloque;
            const QStringList lineas = todo.sliced(inicio, desde - inicio).split(u'\n');
            for (const QString &linea : lineas)
                bloque << QStringList{linea};
            HojaDeCalculo hoja;
            QVERIFY(hoja.pega(en(u"A1"), bloque, Billete()).completa());
            QCOMPARE(hoja.Resultados(static_cast<int>(bloque.size()), 1), ultimo);
        }
    }

    void loQueDaError_data()
    {
        QTest::addColumn<QString>("expresion");
        const QStringList comunes{u"(1+2]"_s, u"1/2 mod 3"_s, u"2**3"_s, u"a1+1"_s, u"9^9^9^9"_s};
        const QStringList porComas{u"mcd(12,18)"_s, u"gcd(12,18)"_s};
        for (qsizetype i = 0; i < paginas.size(); ++i) {
            const QString todo = texto(paginas[i]);
            for (const QString &expresion : comunes + QStringList{porComas[i]}) {
                QVERIFY2(todo.contains(u"<code>"_s + expresion + u"</code>"_s),
                         qPrintable(paginas[i].ruta + u": "_s + expresion));
            }
        }
        for (const QString &expresion : comunes + porComas)
            QTest::newRow(qPrintable(expresion)) << expresion;
    }
    void loQueDaError()
    {
        QFETCH(QString, expresion);
        HojaDeCalculo hoja;
        QCOMPARE(entra(hoja, u"B1", expresion), u"Error"_s);
    }
};

NUMORA_TEST_MAIN(TestAyuda)
#include "tst_Ayuda.moc"
