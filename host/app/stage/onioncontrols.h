#pragma once

#include <zorv/graphics/stage/graphicsrenderer.h>

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QSpinBox;

namespace App {

/// The controls of the onion skin: whether another frame is seen behind the present one, which,
/// and how. Effect and opacity are settings, those of the page of the stage.
class OnionControls : public QWidget
{
    Q_OBJECT

public:
    /// The other frame, of the same animation.
    enum Frame { PreviousFrame, NextFrame, FirstFrame, FixedFrame };

    explicit OnionControls(QWidget* parent = nullptr);

    bool isOn() const;

    /// Tells by `switched()` if that is news.
    void setOn(bool isOn);

    Zorv::GraphicsRenderer::OnionEffect effect() const;
    float opacity() const;

    /// Which of `count` frames is to be shown behind the frame `present`; -1 for none. Before the
    /// first comes the last, as when the animation plays. A fixed frame that is not there is none.
    int otherFrame(int present, int count) const;

    /// Reads effect and opacity from the settings again.
    void reconfig();

signals:
    void switched(bool isOn);

    /// Which frame or how it is shown; also after `switched()`.
    void changed();

private:
    void retranslate();
    void keepSettings();
    void updateEnabled();

    QCheckBox* m_on;
    QComboBox* m_frame;
    QSpinBox* m_number;
    QComboBox* m_effect;
    QSpinBox* m_opacity;
    QLabel* m_labels[3];
};

}  // namespace App
