with totals as (
  select o.CustomerID, o.OrderDate, sum(l.Quantity * l.UnitPrice * (1 - l.Discount)) as total
  from Orders as o
  join "Order Lines" as l on l.OrderID = o.OrderID
  where o.OrderDate between '2024-01-01' and '2024-12-31'
  group by o.OrderID
), buyers as (
  select CustomerID, count(*) as orders, round(sum(total), 2) as turnover, max(OrderDate) as last_day
  from totals group by CustomerID
)
select b.CustomerID, c.Company, b.orders, b.turnover, b.last_day
from buyers as b
join Customers as c on c.CustomerID = b.CustomerID
where b.orders in (2, 3, 4, 5, 6, 7, 8) and (b.orders < 5 or b.turnover < 2000) and b.last_day <= '2024-11-30'
order by b.orders desc, b.CustomerID
