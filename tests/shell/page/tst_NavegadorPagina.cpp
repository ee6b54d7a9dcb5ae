// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/page/TextoBuscado.h"
#include "shell/core/system/Archivos.h"
#include "shell/look/Aspecto.h"
#include "shell/page/PaginaDeLeccion.h"
#include "tests/Tabla.h"
#include "tests/shell/support/Entorno.h"

namespace {

/// A page with folds, a question and enough text to scroll.
QByteArray paginaDePrueba()
{
    const QByteArray relleno = QByteArray("<p>relleno</p>").repeated(60);
    return "<html><head><title>T</title></head><body><nav><a href=\"#uno\">Uno</a> <a "
           "href=\"#dos\">Dos</a></nav>"
           "<section id=\"uno\"><h2>Uno</h2><p>aguja</p></section>" +
           relleno +
           "<section id=\"dos\"><h2>Dos</h2><details "
           "class=\"prueba\"><summary>Prueba</summary><p>Águja</p>"
           "<details class=\"paso\"><summary>Paso</summary><p "
           "id=\"hondo\">aguja</p></details></details>"
           "<ol><li id=\"q\" data-respuesta=\"8\"><p>¿2<sup>3</sup>?</p><a "
           "href=\"numora:pregunta/q\">x</a>"
           "</li></ol></section>" +
           relleno + "</body></html>";
}

} // namespace

/// The browser of introductions, with a page of the program in it.
class TestNavegadorPagina : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        m_pagina = std::make_unique<NavegadorPagina>();
        m_pagina->resize(900, 600);
        m_pagina->navega(u"Doc\\Primos.html"_s);
        m_pagina->show();
    }
    void cleanup() { m_pagina.reset(); }

    void lasFigurasCabenEnElAncho()
    {
        const QSizeF natural = primeraFigura();
        QVERIFY(natural.width() > 400);
        m_pagina->resize(400, 600);
        const qreal margenes = 2 * m_pagina->document()->documentMargin();
        const QSizeF f = primeraFigura();
        QVERIFY(f.width() + margenes <= m_pagina->viewport()->width() && f.width() > 300);
        QVERIFY(qAbs(f.height() / f.width() - natural.height() / natural.width()) < 1e-6);
        m_pagina->resize(10, 10);
        for (const int ancho : {900, 1500}) {
            m_pagina->resize(ancho, 600);
            QCOMPARE(primeraFigura(), natural);
        }
    }

    void losColoresSiguenALaPaleta()
    {
        Aspecto::aplica(Aspecto::Tema::Claro);
        QTRY_COMPARE(colorDelTitulo(), Aspecto::acento());
        Q_EMIT m_pagina->anchorClicked(QUrl(u"Euclides.html"_s));
        m_pagina->verticalScrollBar()->setValue(300);
        Aspecto::aplica(Aspecto::Tema::Oscuro);
        QTRY_COMPARE(colorDelTitulo(), Aspecto::acento());
        QCOMPARE(m_pagina->verticalScrollBar()->value(), 300);
        QCOMPARE(m_pagina->source().fileName(), u"Euclides.html"_s);
        Aspecto::aplica(Aspecto::Tema::Sistema);
    }

    void losEnlacesYUnaPaginaQueFalta()
    {
        for (const QString &enlace : {u"Euclides.html"_s, u"https://example.org/"_s}) {
            Q_EMIT m_pagina->anchorClicked(QUrl(enlace));
            QCOMPARE(m_pagina->source().fileName(), u"Euclides.html"_s);
        }
        QCOMPARE(Entorno::grabadora().abiertas, QStringList{u"https://example.org/"_s});

        m_pagina->navega(u"Doc\\Nada.html"_s);
        QVERIFY(
            m_pagina->toPlainText().startsWith(u"No se encuentra la página de introducción."_s));
        QVERIFY(QDir::fromNativeSeparators(m_pagina->toPlainText()).endsWith(u"/Doc/Nada.html"_s));
    }

    void lasLineasTienenUnos75Caracteres()
    {
        m_pagina->resize(2000, 600);
        const QString linea =
            u"En un lugar de la Mancha, de cuyo nombre no quiero acordarme, no ha mucho t"_s;
        const qreal ancho =
            m_pagina->viewport()->width() - 2 * m_pagina->document()->documentMargin();
        const qreal cabe = ancho / QFontMetricsF(m_pagina->font()).horizontalAdvance(linea);
        QVERIFY2(cabe > 0.92 && cabe < 1.08, qPrintable(QString::number(cabe)));
        QVERIFY(qAbs(m_pagina->viewport()->x() -
                     (2000 - m_pagina->viewport()->geometry().right())) < 30);
    }

    void seLeeConTodo()
    {
        PaginaDeLeccion entera;
        NavegadorPagina &pagina = *entera.navegador();
        muestraPrueba(entera);
        // Folds open one at a time, by keyboard too, and the place stays.
        const int altura = pagina.verticalScrollBar()->maximum() / 2;
        pagina.verticalScrollBar()->setValue(altura);
        Q_EMIT pagina.anchorClicked(QUrl(u"pliegue:0"_s));
        QVERIFY(texto(entera).contains(u"▾ Prueba"_s) && texto(entera).contains(u"▸ Paso"_s));
        QCOMPARE(pagina.verticalScrollBar()->value(), altura);
        pagina.setFocus();
        QTest::keyClick(&pagina, Qt::Key_Tab); // Uno
        for (int i = 0; i < 3; ++i)            // Dos, Prueba, Paso
            QTest::keyClick(&pagina, Qt::Key_Tab);
        QTest::keyClick(&pagina, Qt::Key_Return);
        QVERIFY(texto(entera).contains(u"▾ Paso"_s));
        QTest::keyClick(&pagina, Qt::Key_Return);
        QVERIFY(texto(entera).contains(u"▸ Paso"_s));
        // A link to what is folded.
        Q_EMIT pagina.anchorClicked(QUrl(u"#hondo"_s));
        QVERIFY(texto(entera).contains(u"▾ Paso"_s));
        Q_EMIT pagina.anchorClicked(QUrl(u"pliegue:0"_s));

        // The contents mark the section in sight, and lead to one.
        auto *contenido = control<QListWidget>(&entera, u"lstContenido"_s);
        QVERIFY(contenido->isVisible());
        pagina.verticalScrollBar()->setValue(0);
        QCOMPARE(contenido->currentRow(), -1); // the contents themselves
        pagina.verticalScrollBar()->setValue(altura / 2);
        QCOMPARE(contenido->currentRow(), 0);
        QCOMPARE(contenido->item(1)->text(), u"Dos"_s);
        contenido->setCurrentRow(1);
        Q_EMIT contenido->itemActivated(contenido->item(1));
        QCOMPARE(pagina.apartadoALaVista(), 1);
        entera.resize(500, 500);
        QVERIFY(!contenido->isVisible());
        entera.resize(1200, 500);
        QCOMPARE(contenido->currentRow(), 1);
    }

    void seBusca()
    {
        PaginaDeLeccion entera;
        muestraPrueba(entera);
        QTest::keyClick(entera.navegador(), Qt::Key_F, Qt::ControlModifier);
        auto *campo = control<QLineEdit>(&entera, u"txtBuscar"_s);
        const auto *cuenta = control<QLabel>(&entera, u"lblHallazgos"_s);
        QVERIFY(campo->isVisible());
        QTest::keyClicks(campo, u"aguja"_s);
        QCOMPARE(cuenta->text(), u"1 de 3"_s);
        QVERIFY(texto(entera).contains(u"▸ Prueba"_s));
        QTest::keyClick(campo, Qt::Key_Return);
        QVERIFY(texto(entera).contains(u"▾ Prueba"_s) && texto(entera).contains(u"▸ Paso"_s));
        QCOMPARE(entera.navegador()->textCursor().selectedText(), u"Águja"_s);
        QTest::keyClick(campo, Qt::Key_F3);
        QCOMPARE(cuenta->text(), u"3 de 3"_s);
        QVERIFY(texto(entera).contains(u"▾ Paso"_s));
        QTest::keyClick(campo, Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(entera.navegador()->textCursor().selectedText(), u"Águja"_s);
        campo->setText(u"nada"_s);
        QCOMPARE(cuenta->text(), u"No está en la página"_s);
        QTest::keyClick(campo, Qt::Key_Escape);
        QVERIFY(!campo->isVisible() && texto(entera).contains(u"▾ Paso"_s));

        QKeyEvent deOtro(QEvent::ShortcutOverride, Qt::Key_P,
                         Qt::ControlModifier | Qt::ShiftModifier);
        deOtro.ignore();
        QCoreApplication::sendEvent(&entera, &deOtro);
        QVERIFY(!deOtro.isAccepted());

        QWidget ventana; // where the keyboard is beside the page
        QLineEdit fuera(&ventana);
        PaginaDeLeccion dentro(&ventana);
        ventana.show();
        QVERIFY(QTest::qWaitForWindowActive(&ventana));
        QTest::keyClick(&fuera, Qt::Key_F, Qt::ControlModifier);
        QVERIFY(control<QLineEdit>(&dentro, u"txtBuscar"_s)->isVisible());
    }

    void sePreguntaYSeImprime()
    {
        PaginaDeLeccion entera;
        muestraPrueba(entera);
        Q_EMIT entera.navegador()->anchorClicked(QUrl(u"numora:pregunta/q"_s));
        auto *campo = control<QLineEdit>(&entera, u"txtPregunta"_s);
        QVERIFY(campo->isVisible() && campo->hasFocus());
        QCOMPARE(campo->accessibleDescription(), u"¿23?"_s);
        for (const auto &[respuesta, signo] : {std::pair{u"7"_s, u"✗"_s}, {u"2·4"_s, u"✓"_s}}) {
            campo->setText(respuesta);
            QTest::keyClick(campo, Qt::Key_Return);
            const QString veredicto = control<QLabel>(&entera, u"lblVeredictoPregunta"_s)->text();
            QVERIFY(veredicto.startsWith(signo) &&
                    veredicto.endsWith(campo->accessibleDescription()));
        }
        QTest::keyClick(campo, Qt::Key_Escape);
        QVERIFY(!campo->isVisible());
        const auto *aviso = control<QLabel>(&entera, u"lblAvisoDePagina"_s);
        for (const QString &enlace : {u"numora:pregunta/z"_s, u"numora:x"_s, u"numora:a/b"_s}) {
            Q_EMIT entera.navegador()->anchorClicked(QUrl(enlace));
            QVERIFY(aviso->isVisible() && !aviso->text().isEmpty());
        }

        Entorno::grabadora().impresion = m_carpeta.filePath(u"p.pdf"_s);
        QTest::keyClick(entera.navegador(), Qt::Key_P, Qt::ControlModifier);
        QTRY_VERIFY(leeArchivo(m_carpeta.filePath(u"p.pdf"_s), 1 << 20).startsWith("%PDF"));
        Entorno::grabadora().impresion.clear();
    }

    void laLetraSeRecuerda()
    {
        const qreal programa = QApplication::font().pointSizeF();
        {
            PaginaDeLeccion entera;
            muestraPrueba(entera);
            const qreal antes = entera.navegador()->font().pointSizeF();
            for (const auto tecla : {Qt::Key_Plus, Qt::Key_Plus, Qt::Key_Minus})
                QTest::keyClick(entera.navegador(), tecla, Qt::ControlModifier);
            QVERIFY(entera.navegador()->font().pointSizeF() > antes);
        }
        const PaginaDeLeccion otra;
        QCOMPARE(otra.navegador()->pasosDeLetra(), 1);
        QCOMPARE(QApplication::font().pointSizeF(), programa);
    }

    /// What is found in a page is what its text holds when all is unfolded.
    void loHalladoEstaEnElTexto_data()
    {
        filasDeTexto<QString>(u"Primos.html\nEnglish/Euclides.html\nMiniCal.html"_s);
    }
    void loHalladoEstaEnElTexto()
    {
        const QString archivo = estaFila<QString>();
        const QString ruta = Entorno::carpetaDeTrabajo() + u"/Doc/"_s + archivo;
        PaginaPlegable pagina(QString::fromUtf8(leeArchivo(ruta, 1 << 20)));
        QSet<int> todos;
        for (int i = 0; i < pagina.pliegues(); ++i)
            todos << i;
        QTextDocument documento;
        documento.setHtml(pagina.muestra(todos));
        for (const QString &aguja : {u"a"_s, u"primo"_s, u" de "_s, u"the "_s, u"2"_s, u"1 "_s}) {
            qsizetype veces = 0;
            for (QTextBlock b = documento.begin(); b.isValid(); b = b.next())
                veces += halla(aguja, b.text()).size();
            QCOMPARE(pagina.halla(aguja).size(), veces);
        }
    }

private:
    void muestraPrueba(PaginaDeLeccion &entera)
    {
        escribeArchivo(m_carpeta.filePath(u"p.html"_s), paginaDePrueba());
        entera.resize(1200, 500);
        entera.navegador()->navega(m_carpeta.filePath(u"p.html"_s));
        entera.show();
        QVERIFY(QTest::qWaitForWindowActive(&entera));
    }
    static QString texto(const PaginaDeLeccion &entera)
    {
        return entera.navegador()->toPlainText();
    }

    QSizeF primeraFigura() const
    {
        for (QTextBlock b = m_pagina->document()->begin(); b.isValid(); b = b.next()) {
            for (auto trozo = b.begin(); !trozo.atEnd(); ++trozo) {
                const auto figura = trozo.fragment().charFormat().toImageFormat();
                if (figura.isValid())
                    return {figura.width(), figura.height()};
            }
        }
        return {};
    }

    QColor colorDelTitulo() const
    {
        return m_pagina->document()->begin().begin().fragment().charFormat().foreground().color();
    }

    std::unique_ptr<NavegadorPagina> m_pagina;
    QTemporaryDir m_carpeta;
};

NUMORA_TEST_MAIN(TestNavegadorPagina)
#include "tst_NavegadorPagina.moc"
