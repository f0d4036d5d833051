// Which kinds of items there are: a new one is a class and a row here.
#pragma once

#include "exercises/ItemKinds.h"
#include "exercises/ItemPage.h"

namespace talvora {

/// Makes the pages of all kinds; the services must live as long.
void addItemKinds(ItemKinds& kinds, ItemServices& services);

} // namespace talvora
