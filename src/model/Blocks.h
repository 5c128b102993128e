// Blocks.h - memory of scenery objects: thousands of small blocks that are taken one by one while an airport is
// read, and go together when it is closed. For one thread, as the model is.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace model {

constexpr size_t kBlockStep = 16;      // a size class is a multiple of that, and so is every address
constexpr size_t kLargestBlock = 256;  // larger blocks are rare, and come singly

// Blocks cut from large chunks, and those given back, by size class.
struct BlockPool {
    struct Free {
        Free* next;
    };
    Free* free[kLargestBlock / kBlockStep] = {};
    uint8_t* rest = nullptr;  // of the newest chunk
    size_t restSize = 0;
    std::vector<uint8_t*> chunks;
    size_t out = 0;  // taken and not given back, without those that come singly
};
void* TakeFrom(BlockPool* pool, size_t size);
void GiveTo(BlockPool* pool, void* block, size_t size);
void ReleasePool(BlockPool* pool);

// The pool of all objects. A block of `size` bytes, aligned for any field of an object, holding anything. It is given
// back with that size.
void* TakeBlock(size_t size);
void GiveBlock(void* block, size_t size);

// Returns the memory to the system, unless a block is still out somewhere: then a later call does.
void ReleaseBlocks();

// Blocks that are taken and not given back; 0 always in a build whose blocks come singly from the system.
size_t BlocksOut();

}  // namespace model
