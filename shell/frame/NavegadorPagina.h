// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextBrowser>

/// Shows a local page of introduction (`wbIntro`). The page is read when the browser is first seen,
/// links to other pages open here, web addresses in the system's browser, the colours follow
/// the palette, and figures shrink to the width of the window.
class NavegadorPagina : public QTextBrowser
{
    Q_OBJECT

public:
    explicit NavegadorPagina(QWidget *padre = nullptr);

    /// Navigates to a page, given with any separators and without regard to case. A missing page
    /// shows a notice with its name.
    void navega(const QString &ruta);

    /// Pictures are drawn as sharp as the screen is.
    QVariant loadResource(int tipo, const QUrl &nombre) override;

protected:
    void showEvent(QShowEvent *suceso) override;
    void resizeEvent(QResizeEvent *suceso) override;
    void changeEvent(QEvent *suceso) override;

private:
    void muestra();
    void ponColores();
    /// Makes figures that are wider than the window as wide as it is.
    void ajustaFiguras();
    void sigueEnlace(const QUrl &enlace);

    QString m_ruta;
    bool m_pendiente = false;
};
