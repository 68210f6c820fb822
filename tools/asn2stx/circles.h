#pragma once
#include <cstddef>
#include <vector>

// A graph by the edges of its nodes, which are numbered from 0.
struct EdgeLists {
  std::vector<size_t> first;  // edge of a node; one more behind the last
  std::vector<size_t> to;
};

// For each node, whether it can be reached from itself.
std::vector<bool> nodesOnCircles(const EdgeLists &graph);
