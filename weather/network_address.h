#pragma once

#include <string>
#include <string_view>

/// Where the weather network is.
namespace veraqua {

/// The file of the data directory whose first line is the address that the user gives the network.
constexpr std::string_view NetworkFile = "network.txt";

/// Makes `url`, with a final "/", the network's address.
void UseNetwork(std::string_view url);

/// Takes the address from the first line of network.txt in the open data directory; where it has none, that which is
/// built in.
void TakeNetworkOfUser();

/// What to do where the network didn't give the file at `url`: names its host and the file.
std::string NetworkAdvice(std::string_view url);

}  // namespace veraqua
