#include "platform/openstreetmap/TileTextures.h"

namespace OpenStreet {

void TileTextures::set(const TileAddress& tile, const QImage& image)
{
    const auto [found, created] = mTiles.try_emplace(tile);
    if (created) {
        found->second.place = mOrder.insert(mOrder.begin(), tile);
    }
    found->second.texture.setImage(image);
}

Tessel::OpenGL::Texture* TileTextures::use(const TileAddress& tile)
{
    const auto found = mTiles.find(tile);
    if (found == mTiles.end()) {
        return nullptr;
    }
    mOrder.splice(mOrder.begin(), mOrder, found->second.place);
    return &found->second.texture;
}

std::list<TileAddress> TileTextures::dropDownTo(std::size_t count)
{
    std::list<TileAddress> dropped;
    while (mTiles.size() > count) {
        mTiles.erase(mOrder.back());
        dropped.splice(dropped.end(), mOrder, std::prev(mOrder.end()));
    }
    return dropped;
}

void TileTextures::clear()
{
    mTiles.clear();
    mOrder.clear();
}

} // namespace OpenStreet
