#pragma once

class QAbstractButton;

/// The look of the buttons that start and stop a computation: picture, caption and tooltip say what
/// a click would do.
void muestraCalcular(QAbstractButton *boton);
void muestraDetener(QAbstractButton *boton);
