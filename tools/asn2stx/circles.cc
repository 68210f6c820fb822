// Nodes of a graph that lie on a circle: Tarjan's search for strongly
// connected components, with its own stack, as chains may be long.

#include "asn2stx/circles.h"
#include <algorithm>

// What the search has found out so far.
struct CircleSearch {
  std::vector<size_t> order;  // of discovery, from 1
  std::vector<size_t> low;
  std::vector<size_t> open;
  std::vector<bool> isOpen;
  std::vector<bool> onCircle;
  size_t count = 0;
};

static void closeComponent(const EdgeLists &graph, CircleSearch &search,
                           size_t node)
{
  bool alone = search.open.back() == node;
  size_t member;
  do {
    member = search.open.back();
    search.open.pop_back();
    search.isOpen[member] = false;
    search.onCircle[member] = !alone;
  } while (member != node);
  if (alone)
    for (size_t e = graph.first[node]; e < graph.first[node + 1]; ++e)
      if (graph.to[e] == node)
        search.onCircle[node] = true;
}

static void searchFrom(const EdgeLists &graph, CircleSearch &search,
                       size_t start)
{
  struct Step {
    size_t node;
    size_t edge;
  };
  std::vector<Step> way;
  auto enter = [&](size_t node) {
    search.order[node] = search.low[node] = ++search.count;
    search.open.push_back(node);
    search.isOpen[node] = true;
    way.push_back({node, graph.first[node]});
  };
  enter(start);
  while (!way.empty()) {
    size_t node = way.back().node;
    if (way.back().edge < graph.first[node + 1]) {
      size_t to = graph.to[way.back().edge++];
      if (search.order[to] == 0)
        enter(to);
      else if (search.isOpen[to])
        search.low[node] = std::min(search.low[node], search.order[to]);
      continue;
    }
    way.pop_back();
    if (!way.empty()) {
      size_t father = way.back().node;
      search.low[father] = std::min(search.low[father], search.low[node]);
    }
    if (search.low[node] == search.order[node])
      closeComponent(graph, search, node);
  }
}

std::vector<bool> nodesOnCircles(const EdgeLists &graph)
{
  size_t count = graph.first.size() - 1;
  CircleSearch search;
  search.order.resize(count);
  search.low.resize(count);
  search.isOpen.resize(count);
  search.onCircle.resize(count);
  for (size_t i = 0; i < count; ++i)
    if (search.order[i] == 0)
      searchFrom(graph, search, i);
  return search.onCircle;
}
