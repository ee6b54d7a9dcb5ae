// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/Evento.h"
#include "shell/page/NavegadorPagina.h"

class BarraDeBusqueda;
class BarraDePregunta;
class QKeyEvent;
class QLabel;
class QListWidget;

/// Follows a link of a page into the program; a sentence for the reader where it cannot be done,
/// else an empty text.
using GuiaDeEnlaces = std::function<QString(const QUrl &enlace)>;

/// A page with all that helps to read it: its contents at the side where there is room for them, a
/// search, its questions, larger and smaller type, printing.
class PaginaDeLeccion : public QWidget
{
    Q_OBJECT

public:
    explicit PaginaDeLeccion(QWidget *padre = nullptr);

    NavegadorPagina *navegador() const { return m_navegador; }

    void ponGuia(const GuiaDeEnlaces &guia) { m_guia = guia; }

    TareasDeVentana &tareas() { return m_tareas; }

protected:
    bool event(QEvent *suceso) override;
    void resizeEvent(QResizeEvent *suceso) override;
    void wheelEvent(QWheelEvent *suceso) override;

private:
    using Orden = std::function<void()>;
    /// What a key is for here; nothing where it is left to others.
    Orden ordenDe(const QKeyEvent &tecla);
    void cambiaLetra(int pasos);
    void muestraContenido();
    void rellenaContenido();
    void marcaApartado();
    void lstContenido_Click(int fila);
    void sigueEnlace(const QUrl &enlace);
    QString pregunta(const QString &lugar);
    void dice(const QString &frase);
    void cierraBarras();

    NavegadorPagina *m_navegador;
    QListWidget *m_contenido;
    BarraDeBusqueda *m_busqueda;
    BarraDePregunta *m_pregunta;
    QLabel *m_aviso;
    GuiaDeEnlaces m_guia;
    TareasDeVentana m_tareas{this};
};
