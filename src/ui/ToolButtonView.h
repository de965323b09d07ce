#pragma once

#include <QToolButton>

// A tool's button: its picture, with the caption as its name.
class ToolButtonView : public QToolButton
{
    Q_OBJECT

public:
    // `tool` is the index of the tool in AuxButton.
    explicit ToolButtonView(int tool, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;

private:
    int m_tool;
};
