select p.ProductName, p.IntroducedOn, p.ListPrice, p.Discontinued
from Products as p
where not exists (
  select *
  from "Order Lines" as l
  join Orders as o on o.OrderID = l.OrderID
  where l.ProductID = p.ProductID and o.OrderDate > '2023-12-31')
order by p.ProductName
