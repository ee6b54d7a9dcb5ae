// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/Evento.h"
#include "shell/frame/Leccion.h"

#include <QHash>
#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <memory>

class FormLeccion;
class FormTeclas;
struct EnlaceDeLeccion;
class MenuIr;
class MenuLecciones;
class MenuVentana;
class PanelBienvenida;
struct OrdenDePaleta;

namespace Ui {
class FormPrincipal;
}

/// The main window: the lesson menu, the toolbar, the animated logo, and the lessons as child
/// windows. It is handed the table of lessons and knows none of them by name.
class FormPrincipal : public QMainWindow
{
    Q_OBJECT

public:
    explicit FormPrincipal(const Contenido &contenido, QWidget *padre = nullptr);
    /// Shuts the big-number service down.
    ~FormPrincipal() override;

    /// Rows of the spreadsheet and of the practice window in `abreLeccion`.
    static constexpr int FilaHojaDeCalculo = -1;
    static constexpr int FilaPracticas = -2;

    /// Opens the window of a row of the menu, or brings the existing one to the front; null for a
    /// row that does not exist or has no lesson yet.
    FormLeccion *abreLeccion(int fila);

    /// Follows a link ("numora:…") of a page that is open in the lesson of row `desde`: opens
    /// lesson and topic, fills the fields, starts nothing. A link that names what the table of
    /// lessons does not does nothing. A sentence where something could not be done, else empty.
    QString sigueEnlace(const QUrl &direccion, int desde);

    /// Follows such a link that comes from outside the program, and tells the user where something
    /// could not be done.
    void llega(const QUrl &enlace);

    /// Opens the practice window on a lesson, a kind of exercise at a level (0: the one that is
    /// next), or with no key on what is due (VentanaDePracticas). A sentence for the student where
    /// there is no such thing.
    QString practica(const QString &clave = {}, int nivel = 0);

    /// The lesson in the active child window, or null.
    FormLeccion *leccionActiva() const;

    /// Shows the about box; as the splash it goes away by itself after some seconds.
    QWidget *muestraAcercaDe(bool presentacion);

    /// Has every lesson keep its unsaved work where it is found again, asking nothing.
    void guardaLoPendiente();

    /// The same, then closes all windows and this one. They come back at the next start.
    void terminaSinPreguntar();

    /// The keys that do something now: the key, what it does, and where, in the interface's
    /// language. Made from the commands themselves.
    QList<QStringList> teclas() const;

protected:
    bool event(QEvent *suceso) override;
    void closeEvent(QCloseEvent *suceso) override;
    void showEvent(QShowEvent *suceso) override;
    bool eventFilter(QObject *objeto, QEvent *suceso) override;

private:
    static constexpr int NingunaFila = -3;

    void preparaMenu(const Contenido &contenido);
    void preparaOrdenes();
    void preparaAspecto();
    void preparaIr();
    void cambiaDeLeccion();
    void marcaLecciones();
    void muestraTemas();
    QList<OrdenDePaleta> ordenes();
    QList<OrdenDePaleta> ordenesDe(int fila);
    QList<OrdenDePaleta> ordenesDeMenus() const;
    void abreTemaDe(int fila, const QString &clave, int pestana);
    void abrePaginaDe(int fila);
    void anotaSesion();
    void recuperaSesion();
    void recuperaTamano();
    void anotaTamanos();
    const Leccion *ventanaDe(int fila) const;
    void colocaVentana(FormLeccion *leccion);
    void preparaEnlaces(FormLeccion *leccion, int fila);
    QString sigueEnlace(const EnlaceDeLeccion &enlace, int desde);
    /// The way back to the place where the page of a row's lesson is read now.
    std::function<void()> vueltaA(int fila);
    QList<QPointer<FormLeccion>> abiertas() const;
    Tarea<> pideCierre();

    void FlexMenu_Click(const QModelIndex &indice);
    void FlexMenu_MouseMove(int fila);
    void AniLogo_MouseDown(Qt::MouseButton boton);
    void TimerLogo_Timer();
    void Calculadora_Click();
    void calc_Click();
    void Algoritmos_Click();
    void mnuCerrar_Click();
    void mnuSinMovimiento_Click(bool reducido);
    void mnuOtroPanel_Click();
    void mnuDepartamento_Click();
    void mnuPracticas_Click();
    void mnuBuscarOrden_Click();
    void mnuTeclas_Click();
    void invitaAPracticar();
    void cambiaLetra(int pasos);

    std::unique_ptr<Ui::FormPrincipal> ui;
    MenuLecciones *m_menu;
    MenuVentana *m_menuVentana;
    MenuIr *m_menuIr;
    FormTeclas *m_teclas = nullptr; ///< made when it is first asked for
    PanelBienvenida *m_bienvenida;
    QList<Leccion> m_lecciones;
    Leccion m_hojaDeCalculo;
    VentanaDePracticas m_practicas;
    QHash<int, QPointer<FormLeccion>> m_abiertas;
    QTimer *m_timerPresentacion;
    QTimer *m_timerLogo;
    QTimer *m_timerTamano;
    int m_filaResaltada = -1;
    bool m_cierrePermitido = false;
    bool m_enCierre = false;
    bool m_preguntando = false;
    TareasDeVentana m_tareas{this};
};
