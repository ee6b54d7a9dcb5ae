#include "shell/Corrida.h"
#include "tests/minical/HojaDePrueba.h"
#include "tests/shell/support/Entorno.h"

#include <QFile>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace {

/// One row of a table of the page: the texts of its cells, by the headings of the columns.
using Fila = QHash<QString, QString>;

QString pagina()
{
    QFile archivo(Entorno::carpetaDeTrabajo() + u"/Doc/MiniCal.html"_s);
    return archivo.open(QIODevice::ReadOnly) ? QString::fromUtf8(archivo.readAll()) : QString();
}

QList<QList<Fila>> tablas()
{
    QList<QList<Fila>> todas;
    QStringList cabeceras;
    QStringList celdas;
    QXmlStreamReader xml(pagina());
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

/// What is written and what is seen, under either of the headings that the page uses.
QString dato(const Fila &fila, const QString &uno, const QString &otro)
{
    return fila.value(uno, fila.value(otro));
}

} // namespace

/// Every example of the help page, in the sheet.
class TestAyuda : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Entorno::limpia(); }

    void ejemplos()
    {
        int probados = 0;
        const auto todas = tablas();
        for (const QList<Fila> &tabla : todas) {
            HojaDeCalculo hoja;
            for (const Fila &fila : tabla) {
                const QString expresion = dato(fila, u"Escribes"_s, u"Ejemplo"_s);
                QString espera = dato(fila, u"Ves"_s, u"Resultado"_s);
                if (expresion.isEmpty() || espera.isEmpty())
                    continue;
                QString visto = entra(hoja, fila.value(u"Celda"_s, u"Y99"_s), expresion);
                if (espera.endsWith(u'…')) {
                    espera.chop(1);
                    visto.truncate(espera.size());
                }
                QVERIFY2(visto == espera, qPrintable(expresion + u" = "_s + visto));
                ++probados;
            }
        }
        QVERIFY(probados > 40);
    }

    /// The blocks to paste give the last result of the table that stands below each.
    void bloques()
    {
        const QStringList ultimos{u"886731088897/627013566048"_s, u"72"_s};
        const QString texto = pagina();
        qsizetype desde = 0;
        for (const QString &ultimo : ultimos) {
            QVERIFY(texto.indexOf(u"<pre>"_s, desde) > 0);
            const auto inicio = texto.indexOf(u"<pre>"_s, desde) + 5;
            desde = texto.indexOf(u"</pre>"_s, inicio);
            QList<QStringList> bloque;
            const QStringList lineas = texto.sliced(inicio, desde - inicio).split(u'\n');
            for (const QString &linea : lineas)
                bloque << QStringList{linea};
            HojaDeCalculo hoja;
            Corrida corrida([] {});
            QVERIFY(hoja.pega(en(u"A1"), bloque, corrida));
            QCOMPARE(hoja.Resultados(static_cast<int>(bloque.size()), 1), ultimo);
        }
    }

    void loQueDaError_data()
    {
        QTest::addColumn<QString>("expresion");
        for (const auto &expresion :
             {u"(1+2]"_s, u"1/2 mod 3"_s, u"a1+1"_s, u"mcd(12,18)"_s, u"9^9^9^9"_s}) {
            QVERIFY2(pagina().contains(u"<code>"_s + expresion + u"</code>"_s),
                     qPrintable(expresion));
            QTest::newRow(qPrintable(expresion)) << expresion;
        }
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
