-- param Param1=2025-08-15
select c.CustomerID, c.Company, n.CountryName, c.Segment
from Customers as c
join Countries as n on n.CountryCode = c.CountryCode
where c.CustomerID in (
  select CustomerID from Orders where OrderDate >= '2024-01-01' and OrderDate < '2024-07-01'
  except
  select CustomerID from Orders where OrderDate >= :Param1)
order by c.CustomerID
