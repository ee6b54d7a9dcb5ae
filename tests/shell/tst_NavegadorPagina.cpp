// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/Aspecto.h"
#include "shell/page/NavegadorPagina.h"
#include "tests/shell/support/Entorno.h"

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
        QVERIFY(m_pagina->toPlainText().endsWith(u"/Doc/Nada.html"_s));
    }

private:
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
};

NUMORA_TEST_MAIN(TestNavegadorPagina)
#include "tst_NavegadorPagina.moc"
