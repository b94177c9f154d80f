with totals as (
  select o.CustomerID, o.OrderID, sum(l.Quantity * l.UnitPrice * (1 - l.Discount)) as total
  from Orders as o
  join "Order Lines" as l on l.OrderID = o.OrderID
  where o.OrderDate >= '2023-01-01'
  group by o.CustomerID, o.OrderID
), customer_totals as (
  select CustomerID, count(*) as orders, round(sum(total), 2) as turnover from totals group by CustomerID
)
select c.CustomerID, c.Company, n.CountryName, t.orders, t.turnover
from customer_totals as t
join Customers as c on c.CustomerID = t.CustomerID
join Countries as n on n.CountryCode = c.CountryCode
where t.turnover >= 20000 and t.orders >= 25
order by t.turnover desc, c.CustomerID
