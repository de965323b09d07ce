#pragma once

#include <QListWidget>

// A list that says why it is empty.
class ListView : public QListWidget
{
    Q_OBJECT

public:
    explicit ListView(const QString& whyEmpty, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    QString m_whyEmpty;
};
