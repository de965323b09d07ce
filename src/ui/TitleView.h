#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

#include <future>

// A picture that fills its width: it keeps its proportions and is cropped, never stretched.
class TitleView : public QWidget
{
    Q_OBJECT

public:
    explicit TitleView(QWidget* parent = nullptr);

    // Shows the picture at `path`; one that cannot be read leaves the picture that is shown. The picture
    // is read beside whatever the caller does next.
    void showPicture(const QString& path);

    QSize sizeHint() const override { return {940, height}; }

    static constexpr int height = 84; // layout units

Q_SIGNALS:
    void clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QSize pixels() const; // what the view shows, in the screen's pixels
    void read(const QString& path);

    QString m_path; // of the picture asked for last
    QString m_shownPath;
    QPixmap m_picture; // as large as the view was when it was read
    std::future<QImage> m_reading;
};
