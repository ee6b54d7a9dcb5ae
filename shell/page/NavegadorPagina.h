// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/page/PaginaPlegable.h"

#include <QHash>
#include <QTextBrowser>
#include <memory>

/// Shows a local page of introduction (`wbIntro`) in a column that is good to read, with text that
/// folds and a type size of its own. The page is read when the browser is first seen, links to
/// other pages open here, web addresses in the system's browser; the colours, those of the figures
/// as well, follow the palette, and figures shrink to the width of the column.
class NavegadorPagina : public QTextBrowser
{
    Q_OBJECT

public:
    /// The length of a full line, in characters of running text.
    static constexpr int CaracteresPorLinea = 75;

    explicit NavegadorPagina(QWidget *padre = nullptr);

    /// Navigates to a page, given with any separators and without regard to case. A missing page
    /// shows a notice with its name.
    void navega(const QString &ruta);

    const PaginaPlegable &pagina() const { return m_pagina; }

    /// The line of the contents that the first text in sight belongs to; -1 before all of them.
    int apartadoALaVista() const;

    /// Where the reader is; `ve` goes back there.
    struct Lugar
    {
        QUrl pagina;
        int altura = 0;
    };
    Lugar lugar() const;
    void ve(const Lugar &lugar);

    /// Looks for a text in the page, in what is folded too, and gives the number of places.
    int busca(const QString &texto);
    /// Selects one of them, counted from 0, having unfolded what holds it.
    void muestraHallazgo(int cual);

    /// The type size: how many steps it is larger than that of the program's texts needs.
    void ponPasosDeLetra(int pasos);
    int pasosDeLetra() const { return m_pasosDeLetra; }

    /// The width that a line of CaracteresPorLinea takes, with the margins of the page, in pixels.
    int anchoDeColumna() const;

    /// The page as it is to be printed: what is unfolded, in the colours for paper.
    std::unique_ptr<QTextDocument> paraPapel() const;

    /// Pages are folded, and pictures drawn as sharp as the screen is.
    QVariant loadResource(int tipo, const QUrl &nombre) override;

Q_SIGNALS:
    /// A link for the program ("numora:…") was followed.
    void enlacePulsado(const QUrl &enlace);

protected:
    bool event(QEvent *suceso) override;
    void showEvent(QShowEvent *suceso) override;
    void resizeEvent(QResizeEvent *suceso) override;
    void changeEvent(QEvent *suceso) override;
    void wheelEvent(QWheelEvent *suceso) override;

private:
    void muestra();
    void ponColores();
    void ponLetra();
    void recarga();
    void ajustaColumna();
    qreal huecoParaFiguras() const;
    QString conFigurasQueCaben(const QString &html);
    /// Makes figures that are wider than the column as wide as it is.
    void ajustaFiguras();
    void sigueEnlace(const QUrl &enlace);
    void pliega(int pliegue);
    void despliega(int pliegue);
    void enfocaPliegue(int pliegue);
    QSet<int> &abiertos() { return m_abiertos[source().path()]; }

    QString m_ruta;
    bool m_pendiente = false;
    PaginaPlegable m_pagina;
    QString m_leida;                      ///< the path of that page
    QHash<QString, qreal> m_anchos;       ///< of the figures as the page gives them, by their names
    QHash<QString, QSet<int>> m_abiertos; ///< the open folds of each page
    mutable QList<int> m_apartados;       ///< where the sections of the contents begin in the text
    QString m_buscado;
    bool m_cargando = false; ///< the figures have not been fitted yet
    int m_pasosDeLetra = 0;
    int m_anchoQuePide = 0; ///< of what is broken into no lines: wide tables
};
