#pragma once

#include <QPixmap>
#include <QWidget>

// A picture that fills its width: it keeps its proportions and is cropped, never stretched.
class TitleView : public QWidget
{
    Q_OBJECT

public:
    explicit TitleView(QWidget* parent = nullptr);

    // Shows the picture at `path`; one that cannot be read leaves the picture that is shown.
    void showPicture(const QString& path);

    QSize sizeHint() const override { return {940, height}; }

    static constexpr int height = 100; // layout units

Q_SIGNALS:
    void clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QString m_path;
    QPixmap m_scaled; // the picture as large as it was last needed
};
