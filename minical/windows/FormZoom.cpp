// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/windows/FormZoom.h"

#include "minical/windows/FormCalcAspecto.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "ui_FormZoom.h"

#include <QCloseEvent>
#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int PuntosAlAbrir = 24;
/// How far from the corner, in pixels: the scroll bars stay free.
constexpr int Rincon = 24;

} // namespace

FormZoom::FormZoom(QWidget *hoja) : QWidget(hoja, Qt::Tool), ui(std::make_unique<Ui::FormZoom>())
{
    ui->setupUi(this);
    traduceVentana(this);
    setWindowIcon(Icono(u"ZOOM"_s));
    // The keys stay with the sheet, whose cells are what one looks at here.
    setAttribute(Qt::WA_ShowWithoutActivating);
    resize(hoja->size() / 3);
    // In the corner of the sheet where it hides the least of what is in use.
    move(hoja->mapToGlobal(hoja->rect().bottomRight()) - rect().bottomRight() -
         QPoint(Rincon, Rincon));
    ui->txtZoom->setFont(letraDeHoja());
    // A number has no words: to look for the ends of one at every line takes quadratic time.
    ui->txtZoom->setWordWrapMode(QTextOption::WrapAnywhere);
    ui->txtZoom->installEventFilter(this);
    ponPuntos(PuntosAlAbrir);
    conecta(ui->SliderZoom, &QSlider::valueChanged, this, &FormZoom::SliderZoom_Scroll);
}

FormZoom::~FormZoom() = default;

void FormZoom::prepara()
{
    ui->txtZoom->setReadOnly(true);
    ui->txtZoom->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    ui->SliderZoom->setValue(Redondea(ui->txtZoom->font().pointSizeF()));
}

void FormZoom::ponTexto(const QString &texto)
{
    // A click on a cell comes twice, as a move and as a click.
    if (texto != ui->txtZoom->toPlainText())
        ui->txtZoom->setPlainText(texto);
}

void FormZoom::SliderZoom_Scroll(int puntos)
{
    ponPuntos(puntos);
}

void FormZoom::ponPuntos(int puntos)
{
    QFont letra = ui->txtZoom->font();
    letra.setPointSize(puntos);
    ui->txtZoom->setFont(letra);
}

void FormZoom::closeEvent(QCloseEvent *suceso)
{
    QWidget::closeEvent(suceso);
    Q_EMIT soltada();
}

bool FormZoom::eventFilter(QObject *objeto, QEvent *suceso)
{
    if (suceso->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(suceso)->key() == Qt::Key_Escape) {
        // The window stays: with the button released it goes on showing what it shows.
        Q_EMIT soltada();
        return true;
    }
    return QWidget::eventFilter(objeto, suceso);
}
