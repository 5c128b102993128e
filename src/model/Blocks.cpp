// Blocks.cpp - see Blocks.h.
//
// Small blocks are cut one behind the other from large chunks, so that what is read together lies together, and
// what was given back serves the next block of its size class. Under AddressSanitizer every block comes singly from
// the system: only so is a use after the end, or beyond the edge, found.
#include "model/Blocks.h"

#include <algorithm>
#include <new>

#if defined(__SANITIZE_ADDRESS__)
#define TARVO_SINGLE_BLOCKS 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define TARVO_SINGLE_BLOCKS 1
#endif
#endif
#ifndef TARVO_SINGLE_BLOCKS
#define TARVO_SINGLE_BLOCKS 0
#endif

namespace model {

namespace {

constexpr bool kSingle = TARVO_SINGLE_BLOCKS != 0;
constexpr size_t kChunk = 65536;
static_assert(kBlockStep <= __STDCPP_DEFAULT_NEW_ALIGNMENT__ || sizeof(void*) == 4);

BlockPool blocks;

size_t ClassOf(size_t size) { return (std::max<size_t>(size, 1) - 1) / kBlockStep; }

void* CutBlock(BlockPool* pool, size_t size) {
    if (pool->restSize < size) {  // what was left of the chunk before is less than a block, and stays unused
        pool->chunks.push_back(static_cast<uint8_t*>(::operator new(kChunk)));
        pool->rest = pool->chunks.back();
        pool->restSize = kChunk;
    }
    void* block = pool->rest;
    pool->rest += size;
    pool->restSize -= size;
    return block;
}

}  // namespace

void* TakeFrom(BlockPool* pool, size_t size) {
    if (size > kLargestBlock) return ::operator new(size);
    ++pool->out;
    const size_t number = ClassOf(size);
    BlockPool::Free* block = pool->free[number];
    if (!block) return CutBlock(pool, (number + 1) * kBlockStep);
    pool->free[number] = block->next;
    return block;
}

void GiveTo(BlockPool* pool, void* block, size_t size) {
    if (size > kLargestBlock) return ::operator delete(block);
    --pool->out;
    BlockPool::Free*& first = pool->free[ClassOf(size)];
    first = new (block) BlockPool::Free{ first };
}

void ReleasePool(BlockPool* pool) {
    if (pool->out > 0) return;
    for (uint8_t* chunk : pool->chunks) ::operator delete(chunk);
    *pool = {};
}

void* TakeBlock(size_t size) { return kSingle ? ::operator new(size) : TakeFrom(&blocks, size); }

void GiveBlock(void* block, size_t size) {
    if (kSingle) return ::operator delete(block);
    GiveTo(&blocks, block, size);
}

void ReleaseBlocks() { ReleasePool(&blocks); }

size_t BlocksOut() { return blocks.out; }

}  // namespace model
