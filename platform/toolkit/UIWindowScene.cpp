#include "platform/toolkit/UIWindowScene.h"

namespace {

std::vector<UIWindowScene*>& scenesInOrder()
{
    static std::vector<UIWindowScene*> scenes;
    return scenes;
}

} // namespace

UIWindowScene::UIWindowScene()
{
    scenesInOrder().push_back(this);
}

UIWindowScene::~UIWindowScene()
{
    std::erase(scenesInOrder(), this);
}

const std::vector<UIWindowScene*>& UIWindowScene::connectedScenes()
{
    return scenesInOrder();
}
